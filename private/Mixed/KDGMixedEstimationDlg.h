// CMixedEstimationDlg: the estimation page of the linear and hierarchical
// mixed models (template 8120). OK refuses an iteration limit outside 1 to
// 10000 and a convergence criterion or confidence that is not strictly
// between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGMixedEstimationData.h"

class CMixedEstimationDlg : public CGUIPageDlg<CMixedEstimationData>, public CMixedEstimationDlgIds {
    DECLARE_DYNAMIC(CMixedEstimationDlg)
public:
    explicit CMixedEstimationDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "Source/KDGMixedEstimationDlg"; }

    // 2012 for a number not strictly inside (0, 1), else 0.
    static UINT OpenUnitProblem(double value) { return value > 0 && value < 1 ? 0 : kMsgOutOfRange; }
    static constexpr UINT kMsgOutOfRange = 2012;

protected:
    DECLARE_MESSAGE_MAP()
};
