#include "private/Quality/KDGCusumData.h"

IMPLEMENT_SERIAL(CCusumData, CGUITabData, 1)
