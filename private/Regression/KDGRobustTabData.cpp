#include "private/Regression/KDGRobustTabData.h"

IMPLEMENT_SERIAL(CMregLmsregTabData, CGUITabData, 1)
IMPLEMENT_SERIAL(CMregLtsTabData, CGUITabData, 1)
IMPLEMENT_SERIAL(CMregSregTabData, CGUITabData, 1)
IMPLEMENT_SERIAL(CMregMmregTabData, CGUITabData, 1)
IMPLEMENT_SERIAL(CLadregMcdregTabData, CGUITabData, 1)
IMPLEMENT_SERIAL(CMregTabData, CGUITabData, 1)
