// CMaTabDlg: the moving-average chart dialog (template 101): the time-weighted chart
// page and the run-tests page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Quality/KDGMaTabData.h"
#include "private/Quality/KDGQcTestsDlg.h"
#include "private/Quality/KDGTimeWeightedDlg.h"

class CMaTabDlg : public CGUIDataDlg<CMaTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMaTabDlg)
public:
    explicit CMaTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGMaTabDlg"; }

    CTimeWeightedDlg& GetChartDlg() { return m_ChartDlg; }
    CQcTestsDlg& GetQcTestsDlg() { return m_QcTestsDlg; }

private:
    CTimeWeightedDlg m_ChartDlg{this};
    CQcTestsDlg m_QcTestsDlg{this};
};
