#include "private/ResponseSurface/KDGRsmEstimateTabData.h"

IMPLEMENT_SERIAL(CRsmEstimateTabData, CGUITabData, 1)
