#include "private/Anova/KDGGLMTabData.h"

IMPLEMENT_SERIAL(CGLMTabData, CGUITabData, 1)
