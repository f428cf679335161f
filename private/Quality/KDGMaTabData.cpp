#include "private/Quality/KDGMaTabData.h"

IMPLEMENT_SERIAL(CMaTabData, CGUITabData, 1)
