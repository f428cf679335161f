// CLogitDecilesDlg: the deciles-of-risk page (template 2760). The table is
// asked for with its check box; the grouping and the number of groups are
// in use with it. The tab dialog shows the page as unavailable while choice
// sets are in use.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLogitDecilesData.h"

class CLogitDecilesDlg : public CGUIPageDlg<CLogitDecilesData>, public CLogitDecilesDlgIds {
    DECLARE_DYNAMIC(CLogitDecilesDlg)
public:
    explicit CLogitDecilesDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitDecilesDlg"; }

protected:
    void OnDecilesCheck();

    DECLARE_MESSAGE_MAP()
};
