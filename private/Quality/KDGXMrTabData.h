// CXMrTabData: the settings of the X-MR chart tab dialog, its two pages in
// page order: the chart, then the run tests, whose text joins the chart
// line.
#pragma once

#include "private/Quality/KDGQcChartTabData.h"
#include "private/Quality/KDGXMrData.h"

class CXMrTabData : public CQcChartTabData<CXMrData> {
    DECLARE_SERIAL(CXMrTabData)
public:
    static CXMrData GetDefaultXMr() { return GetDefaultChart(); }
    CXMrData* GetXMrData() { return GetChartData(); }
};
