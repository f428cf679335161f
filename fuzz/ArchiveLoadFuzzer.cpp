// Loads every value-holder and list type from arbitrary bytes. A load may
// end in the archive's exceptions, never in a crash; whatever loads must
// store and load again to the same value.
#include "framework/GUIArray.h"
#include "framework/GUIData.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

template <class T>
bool Same(const T& a, const T& b)
{
    return a == b;
}

// Names and types survive only the named layout; compare what the layout
// carries.
bool SameLayout(const CGUIArray<CGUIDataVariable>& a, const CGUIArray<CGUIDataVariable>& b, bool named)
{
    if (a.GetSize() != b.GetSize())
        return false;
    for (int i = 0; i < a.GetSize(); ++i) {
        if (a[i].GetVariableType() != b[i].GetVariableType() || a[i].GetColumn() != b[i].GetColumn() ||
            a[i].IsSelected() != b[i].IsSelected())
            return false;
        if (named && (a[i].GetVariableName() != b[i].GetVariableName() || a[i].GetLabel() != b[i].GetLabel()))
            return false;
    }
    return true;
}

bool SameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

template <class Holder, class Check>
void RoundTrip(CArchive& in, UINT schema, Check same)
{
    Holder loaded;
    loaded.Serialize(in);
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        out.SetSchemaFlags(schema);
        loaded.Serialize(out);
        out.Close();
    }
    file.SeekToBegin();
    CArchive again(&file, CArchive::load);
    again.SetSchemaFlags(schema);
    Holder reloaded;
    reloaded.Serialize(again);
    if (!same(loaded, reloaded))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    const UINT schema = (data[0] & 0x80) ? CArchive::namedLists : CArchive::plainLists;
    const bool named = schema == CArchive::namedLists;
    CMemFile file(data + 1, size - 1);
    CArchive ar(&file, CArchive::load);
    ar.SetSchemaFlags(schema);
    try {
        // The low bits pick where to start, so every type sees fresh bytes.
        switch (data[0] % 8) {
        case 0: RoundTrip<CGUIData<int>>(ar, schema, Same<CGUIData<int>>); [[fallthrough]];
        case 1: RoundTrip<CGUIData<unsigned int>>(ar, schema, Same<CGUIData<unsigned int>>); [[fallthrough]];
        case 2:
            RoundTrip<CGUIData<double>>(ar, schema, [](const auto& a, const auto& b) {
                return a.m_nState == b.m_nState && a.m_nFlag1 == b.m_nFlag1 && a.m_nFlag2 == b.m_nFlag2 &&
                       SameBits(a.m_Value, b.m_Value) && SameBits(a.m_DefaultValue, b.m_DefaultValue);
            });
            [[fallthrough]];
        case 3: RoundTrip<CGUIDataWnd<int>>(ar, schema, Same<CGUIDataWnd<int>>); [[fallthrough]];
        case 4:
            RoundTrip<CGUIArray<CGUIDataVariable>>(
                ar, schema, [named](const auto& a, const auto& b) { return SameLayout(a, b, named); });
            [[fallthrough]];
        case 5: RoundTrip<CGUIArray<CString>>(ar, schema, Same<CGUIArray<CString>>); [[fallthrough]];
        case 6:
            RoundTrip<CGUIArray<int>>(ar, schema, Same<CGUIArray<int>>);
            RoundTrip<CGUIArray<double>>(ar, schema, [](const auto& a, const auto& b) {
                if (a.GetSize() != b.GetSize())
                    return false;
                for (int i = 0; i < a.GetSize(); ++i)
                    if (!SameBits(a[i], b[i]))
                        return false;
                return true;
            });
            [[fallthrough]];
        default:
            RoundTrip<CGUIArray<CGUIArray<CGUIDataVariable>>>(ar, schema, [named](const auto& a, const auto& b) {
                if (a.GetSize() != b.GetSize())
                    return false;
                for (int i = 0; i < a.GetSize(); ++i)
                    if (!SameLayout(a[i], b[i], named))
                        return false;
                return true;
            });
        }
    } catch (const CArchiveException&) {
    } catch (const CInvalidArgException&) {
    }
    return 0;
}
