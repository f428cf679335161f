#include "private/Missing/KDGMissingTabData.h"

IMPLEMENT_SERIAL(CMissingTabData, CGUITabData, 1)
