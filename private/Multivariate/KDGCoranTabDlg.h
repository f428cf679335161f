// CCoranTabDlg: the correspondence analysis dialog (template 101): the model
// and options pages, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGCoranDlg.h"
#include "private/Multivariate/KDGCoranOptionsDlg.h"
#include "private/Multivariate/KDGCoranTabData.h"

class CCoranTabDlg : public CGUIDataDlg<CCoranTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CCoranTabDlg)
public:
    explicit CCoranTabDlg(CWnd* parent = nullptr);

    CCoranDlg& GetCoranDlg() { return m_CoranDlg; }
    CCoranOptionsDlg& GetCoranOptionsDlg() { return m_CoranOptionsDlg; }

    // Both pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGCoranTabDlg"; }

private:
    CCoranDlg m_CoranDlg{this};
    CCoranOptionsDlg m_CoranOptionsDlg{this};
};
