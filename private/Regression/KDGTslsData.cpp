#include "private/Regression/KDGTslsData.h"

IMPLEMENT_SERIAL(CTslsData, CGUITabData, 1)
