#include "private/Multivariate/KDGFactorTabData.h"

IMPLEMENT_SERIAL(CFactorTabData, CGUITabData, 1)
