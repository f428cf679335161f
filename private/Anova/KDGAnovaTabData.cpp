#include "private/Anova/KDGAnovaTabData.h"

IMPLEMENT_SERIAL(CAnovaTabData, CGUITabData, 1)
