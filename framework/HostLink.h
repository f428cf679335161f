// How framework code reaches the host. A module creates its dialog services
// with CreateDlgBase(IGlobal*); while that object lives, the framework's
// settings and dialogs read the host's preferences and services through
// it. Without a host every query answers its documented default.
#pragma once

#include "platform/CString.h"

class IGlobal;
class IBinReader;

namespace kal::framework {

// The IGlobal of the most recently created dialog services still alive.
IGlobal* Host();

bool WriteEveryOption();      // default false
char16_t DecimalSeparator();  // default '.'
IBinReader* Resources();      // KalUseRes::GetGlobalResourceHandle()

// Resource string `id`, or an empty text.
CString LoadResourceString(unsigned int id);

// Shows message `id` through the host's message service.
void ReportMessage(unsigned int id);

} // namespace kal::framework
