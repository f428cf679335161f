#include "framework/GUIArray.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace {

// Raw little-endian element transfer for arithmetic element types. A load
// makes room only for what the data left in the archive can hold, then
// reads straight into it.
template <class Storage>
void SerializeRaw(CArchive& ar, Storage& items)
{
    using T = typename Storage::value_type;
    if (ar.IsStoring()) {
        ar.WriteCount(items.size());
        ar.Write(items.data(), items.size() * sizeof(T));
        return;
    }
    const ULONGLONG count = ar.ReadCount();
    Storage loaded;
    loaded.resize(ar.ElementsJustified(count, sizeof(T)));
    ar.ReadExact(loaded.data(), loaded.size() * sizeof(T));
    if (loaded.size() < count) {
        T next; // the data ran out before the count: endOfFile
        ar.ReadExact(&next, sizeof next);
    }
    items = std::move(loaded);
}

// Element-by-element transfer; each element reads what it needs, so a
// short archive ends in endOfFile before anything large is allocated.
template <class T, class Transfer>
void SerializeEach(CArchive& ar, CGUIArray<T>& list, Transfer transfer)
{
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<ULONGLONG>(list.GetSize()));
        for (auto& element : list)
            transfer(element);
        return;
    }
    const ULONGLONG count = ar.ReadCount();
    CGUIArray<T> loaded;
    for (ULONGLONG i = 0; i < count; ++i) {
        T element;
        transfer(element);
        loaded.Add(std::move(element));
    }
    list = std::move(loaded);
}

} // namespace

template <>
void CGUIArray<CGUIDataVariable>::Serialize(CArchive& ar)
{
    if (ar.HasNamedLists()) {
        SerializeEach(ar, *this, [&](CGUIDataVariable& v) { v.Serialize(ar); });
        return;
    }
    constexpr std::size_t kBlock = CGUIDataVariable::kBlockSize;
    if (ar.IsStoring()) {
        // The archive's blocks of 64 KiB stay well below the framework's
        // limit of 89478485 blocks a transfer.
        const auto& items = std::as_const(*this).Items();
        ar.WriteCount(static_cast<ULONGLONG>(items.size()));
        ar.WriteBlocks(items.size(), kBlock, [&](BYTE* block, std::size_t first, std::size_t n) {
            for (std::size_t i = 0; i < n; ++i)
                items[first + i].ToBlock(block + i * kBlock);
        });
        return;
    }
    const ULONGLONG count = ar.ReadCount();
    CGUIArray<CGUIDataVariable> loaded;
    auto& items = loaded.Items();
    items.reserve(ar.ElementsJustified(count, kBlock));
    ar.ReadBlocks(count, kBlock, [&](const BYTE* data, std::size_t n) {
        for (std::size_t i = 0; i < n; ++i)
            items.emplace_back(CGUIDataVariable::Block{data + i * kBlock});
    });
    *this = std::move(loaded);
}

template <>
void CGUIArray<CString>::Serialize(CArchive& ar)
{
    SerializeEach(ar, *this, [&](CString& s) {
        if (ar.IsStoring())
            ar << s;
        else
            ar >> s;
    });
}

template <>
void CGUIArray<int>::Serialize(CArchive& ar)
{
    SerializeRaw(ar, Items());
}

template <>
void CGUIArray<double>::Serialize(CArchive& ar)
{
    SerializeRaw(ar, Items());
}

template <>
void CGUIArray<CGUIArray<CGUIDataVariable>>::Serialize(CArchive& ar)
{
    SerializeEach(ar, *this, [&](CGUIArray<CGUIDataVariable>& inner) { inner.Serialize(ar); });
}
