#include "private/Survival/KDGSurvivalNParTabData.h"

IMPLEMENT_SERIAL(CSurvivalNParTabData, CGUITabData, 1)
