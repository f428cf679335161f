// CRunChartDlg: the run-chart dialog (template 5650): measurements in time
// order, grouping variables, the center line and the runs tests.
#pragma once

#include "private/Quality/KDGQcGraphDlg.h"
#include "private/Quality/KDGRunChartData.h"

class CRunChartDlg : public CQcGraphDlg<CRunChartData, CRunChartDlgIds> {
    DECLARE_DYNAMIC(CRunChartDlg)
public:
    explicit CRunChartDlg(CWnd* parent = nullptr) : CQcGraphDlg(parent) {}

    BOOL OnInitDialog() override;
    const char* GetSourceFile() const override { return "Source/KDGRunChartDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
