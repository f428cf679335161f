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

bool WriteEveryOption(); // default false
// The kind of the active data: ordinary data (an active data sheet of type
// code 1) or a matrix (a type code above 1); neither without a data sheet.
bool IsOrdinaryData();
bool IsMatrixData();
// The module line the host's command runner ran last ("ANOVA", "QC", ...).
CString CurrentCommandModule();
char16_t DecimalSeparator(); // default '.'
IBinReader* Resources();     // KalUseRes::GetGlobalResourceHandle()

// Resource string `id`, or an empty text.
CString LoadResourceString(unsigned int id);

// Shows message `id` through the host's message service, with `detail`
// (the field it is about) when there is one.
void ReportMessage(unsigned int id, const CString& detail = {});

} // namespace kal::framework
