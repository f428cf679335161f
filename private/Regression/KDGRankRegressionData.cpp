#include "private/Regression/KDGRankRegressionData.h"

IMPLEMENT_SERIAL(CRankRegressionData, CGUITabData, 1)
