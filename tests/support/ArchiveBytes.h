// Helpers for archive tests: write through a storing archive into bytes,
// read bytes back through a loading archive.
#pragma once

#include "platform/Archive.h"
#include "tests/support/Printers.h"

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kaltest {

using Bytes = std::vector<BYTE>;

template <class Fn>
Bytes Store(Fn&& write, UINT schema = CArchive::plainLists)
{
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        ar.SetSchemaFlags(schema);
        write(ar);
        ar.Close();
    }
    return file.Detach();
}

// The reading function comes last, where a lambda reads best.
template <class Fn>
void Load(const Bytes& bytes, UINT schema, Fn&& read)
{
    CMemFile file(bytes);
    CArchive ar(&file, CArchive::load);
    ar.SetSchemaFlags(schema);
    read(ar);
}

template <class Fn>
void Load(const Bytes& bytes, Fn&& read)
{
    Load(bytes, CArchive::plainLists, std::forward<Fn>(read));
}

// Concatenates byte pieces: Cat({0xFF, 0xFE}, Repeat(...)).
inline Bytes Cat(std::initializer_list<Bytes> pieces)
{
    Bytes all;
    for (const auto& p : pieces)
        all.insert(all.end(), p.begin(), p.end());
    return all;
}

// `count` UTF-16 units of `unit`, little-endian.
inline Bytes Units(std::size_t count, char16_t unit)
{
    Bytes bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes.push_back(static_cast<BYTE>(unit & 0xFF));
        bytes.push_back(static_cast<BYTE>(unit >> 8));
    }
    return bytes;
}

inline Bytes Int32(std::int32_t v)
{
    const auto u = static_cast<std::uint32_t>(v);
    return {static_cast<BYTE>(u), static_cast<BYTE>(u >> 8), static_cast<BYTE>(u >> 16), static_cast<BYTE>(u >> 24)};
}

inline Bytes Float64(double v)
{
    Bytes bytes(8);
    std::memcpy(bytes.data(), &v, 8);
    return bytes;
}

// A WORD, little-endian: the counts and marks of list records.
inline Bytes Word(std::uint16_t v)
{
    return {static_cast<BYTE>(v), static_cast<BYTE>(v >> 8)};
}

// A CString of fewer than 255 units as the archive writes it: the UTF-16
// mark, a length byte, the units.
inline Bytes Text(std::u16string_view text)
{
    Bytes bytes{0xFF, 0xFE, 0xFF, static_cast<BYTE>(text.size())};
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<BYTE>(unit & 0xFF));
        bytes.push_back(static_cast<BYTE>(unit >> 8));
    }
    return bytes;
}

// A CGUIData record: state, flag 1, default, value, flag 2.
inline Bytes DataRecord(int state, int flag1, double defaultValue, double value, int flag2 = 1)
{
    return Cat({Int32(state), Int32(flag1), Float64(defaultValue), Float64(value), Int32(flag2)});
}
inline Bytes DataRecord(int state, int flag1, int defaultValue, int value, int flag2 = 1)
{
    return Cat({Int32(state), Int32(flag1), Int32(defaultValue), Int32(value), Int32(flag2)});
}

} // namespace kaltest
