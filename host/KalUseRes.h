#pragma once

#include "host/IBinReader.h"
