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

    // Refuses (message 2012, the rule in its text) a number in use that is
    // not strictly between 0 and 1: a convergence criterion or confidence
    // at either end means nothing.
    static void WarnOpenUnit(CDataExchange* pDX, UINT id, double value, bool inUse);
    static constexpr UINT kMsgOutOfRange = 2012;

protected:
    DECLARE_MESSAGE_MAP()
};
