// CCoranOptionsDlg: the options page of the correspondence analysis dialog
// (template 6660): the dimensions of the map, the normalization and a file
// for the coordinates, in use while saving is checked.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGCoranOptionsData.h"

class CCoranOptionsDlg : public CGUIPageDlg<CCoranOptionsData>, public CCoranOptionsDlgIds {
    DECLARE_DYNAMIC(CCoranOptionsDlg)
public:
    explicit CCoranOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGCoranOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
