#include "private/Multivariate/KDGMultivarClusterKmeansTabData.h"

IMPLEMENT_SERIAL(CMultivarClusterKmeansTabData, CGUITabData, 1)
