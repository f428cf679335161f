#include "private/Quality/KDGShewhartTabData.h"

IMPLEMENT_SERIAL(CShewhartTabData, CGUITabData, 1)
