// CLadregOptionsDlg: the estimation page of the least-absolute-deviations
// dialog (template 7060).
//
// Rules of the page:
//  - the number of resamples is in use with bootstrap intervals only, the
//    file edit while saving is asked for;
//  - the quantile lies strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLadregOptionsData.h"

class CLadregOptionsDlg : public CGUIPageDlg<CLadregOptionsData>, public CLadregOptionsDlgIds {
    DECLARE_DYNAMIC(CLadregOptionsDlg)
public:
    explicit CLadregOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGLadregOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
