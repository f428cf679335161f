// CFactorTabDlg: the factor analysis dialog (template 101): the model and
// factors pages, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGFactorDlg.h"
#include "private/Multivariate/KDGFactorOptionsDlg.h"
#include "private/Multivariate/KDGFactorTabData.h"

class CFactorTabDlg : public CGUIDataDlg<CFactorTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CFactorTabDlg)
public:
    explicit CFactorTabDlg(CWnd* parent = nullptr);

    CFactorDlg& GetFactorDlg() { return m_FactorDlg; }
    CFactorOptionsDlg& GetFactorOptionsDlg() { return m_FactorOptionsDlg; }

    // The factors page reads the model page: its rules run again once both
    // pages exist.
    BOOL OnInitDialog() override;
    // Both pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGFactorTabDlg"; }

private:
    CFactorDlg m_FactorDlg{this};
    CFactorOptionsDlg m_FactorOptionsDlg{this};
};
