#include "private/Multivariate/KDGCoranTabData.h"

IMPLEMENT_SERIAL(CCoranTabData, CGUITabData, 1)
