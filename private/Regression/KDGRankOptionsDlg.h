// CRankOptionsDlg: the estimation page of rank regression (template 7120).
//
// Rules of the page:
//  - the weighting scheme is shown for the weighted row only;
//  - the file edit is in use while saving is asked for.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRankOptionsData.h"

class CRankOptionsDlg : public CGUIPageDlg<CRankOptionsData>, public CRankOptionsDlgIds {
    DECLARE_DYNAMIC(CRankOptionsDlg)
public:
    explicit CRankOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGRankOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
