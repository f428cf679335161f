#include "private/Regression/KDGLogitTabData.h"

IMPLEMENT_SERIAL(CLogitTabData, CGUITabData, 1)
