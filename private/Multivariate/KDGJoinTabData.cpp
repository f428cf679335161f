#include "private/Multivariate/KDGJoinTabData.h"

IMPLEMENT_SERIAL(CJoinTabData, CGUITabData, 1)
