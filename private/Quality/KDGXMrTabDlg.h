// CXMrTabDlg: the individuals and moving-range chart dialog (template 101): the chart
// page and the run-tests page, in that order.
#pragma once

#include "private/Quality/KDGQcChartTabDlg.h"
#include "private/Quality/KDGXMrDlg.h"
#include "private/Quality/KDGXMrTabData.h"

class CXMrTabDlg : public CQcChartTabDlg<CXMrTabData, CXMrDlg> {
    DECLARE_DYNAMIC(CXMrTabDlg)
public:
    explicit CXMrTabDlg(CWnd* parent = nullptr) : CQcChartTabDlg(parent) {}

    const char* GetSourceFile() const override { return "Source/KDGXMrTabDlg"; }
};
