#include "private/Regression/KDGRidgeRegressionData.h"

IMPLEMENT_SERIAL(CRidgeRegressionData, CGUITabData, 1)
