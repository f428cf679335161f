#include "private/Regression/KDGLadregData.h"

IMPLEMENT_SERIAL(CLadregData, CGUITabData, 1)
