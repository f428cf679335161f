// CEWMATabDlg: the EWMA chart dialog (template 101): the chart
// page and the run-tests page, in that order.
#pragma once

#include "private/Quality/KDGEWMATabData.h"
#include "private/Quality/KDGQcChartTabDlg.h"
#include "private/Quality/KDGTimeWeightedDlg.h"

class CEWMATabDlg : public CQcChartTabDlg<CEWMATabData, CTimeWeightedDlg> {
    DECLARE_DYNAMIC(CEWMATabDlg)
public:
    explicit CEWMATabDlg(CWnd* parent = nullptr) : CQcChartTabDlg(parent) {}

    const char* GetSourceFile() const override { return "Source/KDGEWMATabDlg"; }
};
