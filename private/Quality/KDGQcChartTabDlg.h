// CQcChartTabDlg: the tab dialog (template 101) of a control chart with run
// tests: its chart page, then the run-tests page, in the order of the
// settings' pages. A chart's dialog class derives from it with its settings
// and chart page and adds only its run-time class and source name.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Quality/KDGQcTestsDlg.h"

template <class TData, class TChartDlg>
class CQcChartTabDlg : public CGUIDataDlg<TData, CGUITabDlg> {
public:
    explicit CQcChartTabDlg(CWnd* parent) : CGUIDataDlg<TData, CGUITabDlg>(CGUITabDlg::IDD, parent)
    {
        this->AddPage(m_ChartDlg);
        this->AddPage(m_QcTestsDlg);
    }

    TChartDlg& GetChartDlg() { return m_ChartDlg; }
    CQcTestsDlg& GetQcTestsDlg() { return m_QcTestsDlg; }

private:
    TChartDlg m_ChartDlg{this};
    CQcTestsDlg m_QcTestsDlg{this};
};
