#include "private/ResponseSurface/KDGRsmPlotData.h"

IMPLEMENT_SERIAL(CRsmPlotData, CGUITabData, 1)
