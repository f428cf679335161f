#include "private/Survival/KDGSurvivalTabData.h"

IMPLEMENT_SERIAL(CSurvivalTabData, CGUITabData, 1)
