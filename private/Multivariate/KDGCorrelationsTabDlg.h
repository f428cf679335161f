// CCorrelationsTabDlg: the correlations dialog (template 101): the
// correlations, options and resampling pages, in that order. The options
// page is shown as unavailable while the first page's measure is one it
// does not apply to.
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGCorrOptionsDlg.h"
#include "private/Multivariate/KDGCorrelationsDlg.h"
#include "private/Multivariate/KDGCorrelationsTabData.h"

class CCorrelationsTabDlg : public CGUIDataDlg<CCorrelationsTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CCorrelationsTabDlg)
public:
    // The resampling page's caption, which is also its owner id.
    static constexpr UINT kResamplingCaption = 2363;
    // Why the options page is unavailable.
    static constexpr UINT kOptionsUnavailableText = 13120;

    explicit CCorrelationsTabDlg(CWnd* parent = nullptr);

    CCorrelationsDlg& GetCorrelationsDlg() { return m_CorrelationsDlg; }
    CCorrOptionsDlg* GetCorrOptionsDlg() { return &m_CorrOptionsDlg; }
    CBootStrapDlg* GetBootStrapDlg() { return &m_BootStrapDlg; }
    // Whether the options page applies to the measure the first page shows.
    bool IsOptionsPageAvailable() const { return m_CorrelationsDlg.IsOptionsPageAvailable(); }

    // Every page's rules once more when all pages exist: the first page and
    // the options page read each other.
    BOOL OnInitDialog() override;
    CString GetUnavailableReason(CGUIBaseDlg& page) override;
    // The dialog's caption; the resampling page gets its own.
    void SetDlgCaptionID(UINT captionId) override;
    // The menu row names the dialog's caption and the resampling page's;
    // the other pages keep the captions of their templates.
    void SetCaptionIDs(const std::array<UINT, 4>& captionIds) override;
    // The three pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGCorrelationsTabDlg"; }

private:
    CCorrelationsDlg m_CorrelationsDlg{this};
    CCorrOptionsDlg m_CorrOptionsDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
