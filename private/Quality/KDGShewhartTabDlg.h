// CShewhartTabDlg: the Shewhart control chart dialog (template 101): the
// chart page and the run-tests page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Quality/KDGQcTestsDlg.h"
#include "private/Quality/KDGShewhartDlg.h"
#include "private/Quality/KDGShewhartTabData.h"

class CShewhartTabDlg : public CGUIDataDlg<CShewhartTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CShewhartTabDlg)
public:
    explicit CShewhartTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGShewhartTabDlg"; }

    CShewhartDlg& GetShewhartDlg() { return m_ShewhartDlg; }
    CQcTestsDlg& GetQcTestsDlg() { return m_QcTestsDlg; }

private:
    CShewhartDlg m_ShewhartDlg{this};
    CQcTestsDlg m_QcTestsDlg{this};
};
