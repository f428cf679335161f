// CNonLinSaveDlg: the save page of the nonlinear regressions (template
// 7670): the save check, what is saved (the residuals, alone or with the
// data) and the file; the list and the file are enabled with the check,
// and a checked save needs a file name.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGNonLinSaveData.h"

class CNonLinSaveDlg : public CGUIPageDlg<CNonLinSaveData>, public CNonLinSaveDlgIds {
    DECLARE_DYNAMIC(CNonLinSaveDlg)
public:
    explicit CNonLinSaveDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGNonLinSaveDlg"; }

protected:
    void OnSaveCheck() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()
};
