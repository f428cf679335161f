// CMaTabData: the settings of the moving-average chart tab dialog, its two pages in
// page order: the time-weighted chart page, then the run tests, whose text joins the chart line.
#pragma once

#include "private/Quality/KDGQcChartTabData.h"
#include "private/Quality/KDGTimeWeightedData.h"

class CMaTabData : public CQcChartTabData<CTimeWeightedChartData<TimeWeightedChart::MovingAverage>> {
    DECLARE_SERIAL(CMaTabData)
};
