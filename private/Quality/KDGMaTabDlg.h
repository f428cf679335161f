// CMaTabDlg: the moving-average chart dialog (template 101): the chart
// page and the run-tests page, in that order.
#pragma once

#include "private/Quality/KDGMaTabData.h"
#include "private/Quality/KDGQcChartTabDlg.h"
#include "private/Quality/KDGTimeWeightedDlg.h"

class CMaTabDlg : public CQcChartTabDlg<CMaTabData, CTimeWeightedDlg> {
    DECLARE_DYNAMIC(CMaTabDlg)
public:
    explicit CMaTabDlg(CWnd* parent = nullptr) : CQcChartTabDlg(parent) {}

    const char* GetSourceFile() const override { return "Source/KDGMaTabDlg"; }
};
