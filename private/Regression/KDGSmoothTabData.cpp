#include "private/Regression/KDGSmoothTabData.h"

IMPLEMENT_SERIAL(CSmoothTabData, CGUITabData, 1)
