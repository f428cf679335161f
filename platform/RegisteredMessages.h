// Registered window messages: each message name gets one id for the whole
// process, the same for every library that asks, in the range the desktop
// framework reserves for them (0xC000 to 0xFFFF).
#pragma once

#include "platform/CString.h"
#include "platform/Types.h"

UINT RegisterWindowMessage(const CString& name);
