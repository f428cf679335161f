#include "private/Regression/KDGPlsTabData.h"

IMPLEMENT_SERIAL(CPlsTabData, CGUITabData, 1)
