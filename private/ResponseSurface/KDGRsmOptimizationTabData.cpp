#include "private/ResponseSurface/KDGRsmOptimizationTabData.h"

IMPLEMENT_SERIAL(CRsmOptimizationTabData, CGUITabData, 1)
