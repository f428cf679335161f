// CMixRegEstimationDlg: the estimation page of mixed regression (template
// 8280). The quadrature controls are in use while the model page's link is
// logistic or ordinal. OK refuses points outside 2 to 50, an iteration
// limit outside 1 to 10000 and a convergence criterion that is not strictly
// between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGMixRegEstimationData.h"

class CMixRegEstimationDlg : public CGUIPageDlg<CMixRegEstimationData>, public CMixRegEstimationDlgIds {
    DECLARE_DYNAMIC(CMixRegEstimationDlg)
public:
    explicit CMixRegEstimationDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGMixRegEstimationDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
