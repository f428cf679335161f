#include "private/Regression/KDGNonLinearTabData.h"

IMPLEMENT_DYNAMIC(CNonLinearPagesData, CGUITabData)
IMPLEMENT_SERIAL(CNonLinearTabData, CNonLinearPagesData, 1)
IMPLEMENT_SERIAL(CNonLinLossTabData, CNonLinearPagesData, 1)
