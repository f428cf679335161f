#include "private/Quality/KDGXMrTabData.h"

IMPLEMENT_SERIAL(CXMrTabData, CGUITabData, 1)
