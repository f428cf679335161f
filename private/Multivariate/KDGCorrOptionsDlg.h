// CCorrOptionsDlg: the options page of the correlations tab (template
// 1394): printed probabilities with their adjustment (Pearson only), EM
// estimation with its distribution and limits, and Hadi's robust
// estimation, which excludes EM. The first page's measure decides whether
// the page is available at all.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGCorrOptionsData.h"

class CCorrOptionsDlg : public CGUIPageDlg<CCorrOptionsData>, public CCorrOptionsDlgIds {
    DECLARE_DYNAMIC(CCorrOptionsDlg)
public:
    // An entry out of range, or a convergence or tolerance not above 0.
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CCorrOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    int OKLike() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGCorrOptionsDlg"; }

protected:
    void OnCheckOrRadio();
    void OnEstimationChange();

    DECLARE_MESSAGE_MAP()

private:
    // Whether the tab shows this page as available (true without a tab).
    bool IsInUse();
    // Whether control `id` is enabled and checked.
    bool IsOn(UINT id) const { return IsCtrlEnabled(id) && IsDlgButtonChecked(id); }
};
