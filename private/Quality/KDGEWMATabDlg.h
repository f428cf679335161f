// CEWMATabDlg: the EWMA chart dialog (template 101): the time-weighted chart page and the
// run-tests page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Quality/KDGEWMATabData.h"
#include "private/Quality/KDGQcTestsDlg.h"
#include "private/Quality/KDGTimeWeightedDlg.h"

class CEWMATabDlg : public CGUIDataDlg<CEWMATabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CEWMATabDlg)
public:
    explicit CEWMATabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGEWMATabDlg"; }

    CTimeWeightedDlg& GetChartDlg() { return m_ChartDlg; }
    CQcTestsDlg& GetQcTestsDlg() { return m_QcTestsDlg; }

private:
    CTimeWeightedDlg m_ChartDlg{this};
    CQcTestsDlg m_QcTestsDlg{this};
};
