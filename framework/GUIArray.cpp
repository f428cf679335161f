#include "framework/GUIArray.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

// Raw little-endian element transfer for arithmetic element types.
template <class T>
void SerializeRaw(CArchive& ar, std::vector<T>& items)
{
    if (ar.IsStoring()) {
        ar.WriteCount(items.size());
        ar.Write(items.data(), items.size() * sizeof(T));
        return;
    }
    const ULONGLONG count = ar.ReadCount();
    std::vector<T> loaded;
    loaded.reserve(ar.ElementsJustified(count, sizeof(T)));
    ar.ReadBlocks(count, sizeof(T), [&](const BYTE* data, std::size_t n) {
        const std::size_t old = loaded.size();
        loaded.resize(old + n);
        std::memcpy(loaded.data() + old, data, n * sizeof(T));
    });
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
    // Blocks are staged through a buffer of bounded size; every transfer
    // stays well below the framework's limit of 89478485 blocks.
    constexpr std::size_t kBlocksPerTransfer = std::min<std::size_t>(65536, kMaxVariableBlocksPerTransfer);
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<ULONGLONG>(GetSize()));
        const auto& items = Items();
        std::vector<unsigned char> chunk(std::min(items.size(), kBlocksPerTransfer) * kBlock);
        for (std::size_t first = 0; first < items.size(); first += kBlocksPerTransfer) {
            const std::size_t n = std::min(kBlocksPerTransfer, items.size() - first);
            for (std::size_t i = 0; i < n; ++i)
                items[first + i].ToBlock(chunk.data() + i * kBlock);
            ar.Write(chunk.data(), n * kBlock);
        }
        return;
    }
    const ULONGLONG count = ar.ReadCount();
    CGUIArray<CGUIDataVariable> loaded;
    loaded.Reserve(ar.ElementsJustified(count, kBlock));
    ar.ReadBlocks(count, kBlock, [&](const BYTE* data, std::size_t n) {
        for (std::size_t i = 0; i < n; ++i)
            loaded.Add(CGUIDataVariable::FromBlock(data + i * kBlock));
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
