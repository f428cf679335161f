// CSetCorTabDlg: the set correlation dialog (template 101): the set
// correlation and resampling pages, in that order.
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGSetCorDlg.h"
#include "private/Multivariate/KDGSetCorTabData.h"

class CSetCorTabDlg : public CGUIDataDlg<CSetCorTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CSetCorTabDlg)
public:
    explicit CSetCorTabDlg(CWnd* parent = nullptr);

    CSetCorDlg& GetSetCorDlg() { return m_SetCorDlg; }
    CBootStrapDlg& GetBootStrapDlg() { return m_BootStrapDlg; }

    // The menu row names the dialog's caption and the resampling page's;
    // the set correlation page keeps the caption of its template.
    void SetCaptionIDs(const std::array<UINT, 4>& captionIds) override;
    // Both pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGSetCorTabDlg"; }

private:
    CSetCorDlg m_SetCorDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
