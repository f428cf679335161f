#include "private/Multivariate/KDGSetCorTabData.h"

IMPLEMENT_SERIAL(CSetCorTabData, CGUITabData, 1)
