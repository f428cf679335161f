// CXMrTabDlg: the individuals and moving-range chart dialog (template 101):
// the chart page and the run-tests page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Quality/KDGQcTestsDlg.h"
#include "private/Quality/KDGXMrDlg.h"
#include "private/Quality/KDGXMrTabData.h"

class CXMrTabDlg : public CGUIDataDlg<CXMrTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CXMrTabDlg)
public:
    explicit CXMrTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGXMrTabDlg"; }

    CXMrDlg& GetXMrDlg() { return m_XMrDlg; }
    CQcTestsDlg& GetQcTestsDlg() { return m_QcTestsDlg; }

private:
    CXMrDlg m_XMrDlg{this};
    CQcTestsDlg m_QcTestsDlg{this};
};
