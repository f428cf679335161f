#include "private/Regression/KDGProbitTabData.h"

IMPLEMENT_SERIAL(CProbitTabData, CGUITabData, 1)
