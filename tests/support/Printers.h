// How tests print the framework's strings in failure messages.
#pragma once

#include "platform/CString.h"

#include <ostream>

inline void PrintTo(const CString& text, std::ostream* out)
{
    *out << '"' << text.ToUtf8() << '"';
}
