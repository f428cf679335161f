// CShewhartTabData: the settings of the Shewhart chart tab dialog, its two
// pages in page order: the chart, then the run tests, whose text joins the
// chart line.
#pragma once

#include "private/Quality/KDGQcChartTabData.h"
#include "private/Quality/KDGShewhartData.h"

class CShewhartTabData : public CQcChartTabData<CShewhartData> {
    DECLARE_SERIAL(CShewhartTabData)
public:
    static CShewhartData GetDefaultShewhart() { return GetDefaultChart(); }
    CShewhartData* GetShewhartData() { return GetChartData(); }
};
