// CEWMATabData: the settings of the EWMA chart tab dialog, its two pages in page order:
// the time-weighted chart page, then the run tests, whose text joins the chart line.
#pragma once

#include "private/Quality/KDGQcChartTabData.h"
#include "private/Quality/KDGTimeWeightedData.h"

class CEWMATabData : public CQcChartTabData<CTimeWeightedChartData<TimeWeightedChart::Ewma>> {
    DECLARE_SERIAL(CEWMATabData)
};
