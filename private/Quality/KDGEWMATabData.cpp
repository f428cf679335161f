#include "private/Quality/KDGEWMATabData.h"

IMPLEMENT_SERIAL(CEWMATabData, CGUITabData, 1)
