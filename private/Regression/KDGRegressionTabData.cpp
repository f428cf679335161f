#include "private/Regression/KDGRegressionTabData.h"

IMPLEMENT_SERIAL(CRegressionTabData, CGUITabData, 1)
