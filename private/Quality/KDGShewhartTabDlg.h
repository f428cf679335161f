// CShewhartTabDlg: the Shewhart control chart dialog (template 101): the chart
// page and the run-tests page, in that order.
#pragma once

#include "private/Quality/KDGQcChartTabDlg.h"
#include "private/Quality/KDGShewhartDlg.h"
#include "private/Quality/KDGShewhartTabData.h"

class CShewhartTabDlg : public CQcChartTabDlg<CShewhartTabData, CShewhartDlg> {
    DECLARE_DYNAMIC(CShewhartTabDlg)
public:
    explicit CShewhartTabDlg(CWnd* parent = nullptr) : CQcChartTabDlg(parent) {}

    const char* GetSourceFile() const override { return "Source/KDGShewhartTabDlg"; }
};
