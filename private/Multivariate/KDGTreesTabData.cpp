#include "private/Multivariate/KDGTreesTabData.h"

IMPLEMENT_SERIAL(CTreesTabData, CGUITabData, 1)
