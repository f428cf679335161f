// Fixed-width types of the desktop framework. Every archive size and
// interface signature is written in these names so that record layouts read
// the same here as in archives written by that framework.
#pragma once

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using ULONGLONG = std::uint64_t;
using BOOL = int;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LRESULT = std::intptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;

// Dialog results.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
// A dialog's Help button.
inline constexpr int IDHELP = 9;

static_assert(sizeof(int) == 4 && sizeof(double) == 8, "archive layouts assume 32-bit int and 64-bit double");
