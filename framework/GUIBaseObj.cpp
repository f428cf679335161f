#include "framework/GUIBaseObj.h"

#include "host/KalAssertDlg.h"
#include "platform/TextIndex.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <unordered_set>

IMPLEMENT_DYNAMIC(CGUIBaseObj, CObject)

namespace {

constexpr bool IsAsciiLetter(char16_t ch)
{
    return (ch >= u'a' && ch <= u'z') || (ch >= u'A' && ch <= u'Z');
}

constexpr bool IsDigit(char16_t ch)
{
    return ch >= u'0' && ch <= u'9';
}

// What each ASCII code unit is to a name written into a line: a unit of a
// plain identifier (letter, digit, '_', '.'), a control character, a quote.
// Other units are none of these.
enum : unsigned char { kWordUnit = 1, kControlUnit = 2, kQuoteUnit = 4 };

constexpr auto kUnitClass = [] {
    std::array<unsigned char, 129> table{}; // [128]: any unit beyond ASCII
    for (char16_t ch = 0; ch < 128; ++ch) {
        if (IsAsciiLetter(ch) || IsDigit(ch) || ch == u'_' || ch == u'.')
            table[ch] = kWordUnit;
        else if (ch < 0x20 || ch == 0x7F)
            table[ch] = kControlUnit;
    }
    table[u'\''] = kQuoteUnit;
    return table;
}();

// What writing a name needs to know, found in one scan of it.
struct NameScan {
    bool control = false; // holds a control character: never written
    bool quote = false;   // holds a single quote, doubled when written
    bool plain = false;   // a plain identifier: written as it is
};

// Scans `name` and hands each unit to `unit` on the way, so that a line
// can copy a name in the same pass that decides how to write it. Inline:
// it runs once per name of a line.
template <class Unit>
inline NameScan ScanName(std::u16string_view name, Unit unit)
{
    // A final '$' may follow a plain identifier; it is neither a control
    // character nor a quote, so the scan can stop before it.
    const std::size_t body = name.size() - (!name.empty() && name.back() == u'$' ? 1 : 0);
    unsigned all = kWordUnit;
    unsigned any = 0;
    for (std::size_t i = 0; i < body; ++i) {
        const char16_t ch = name[i];
        unit(i, ch);
        const unsigned kind = kUnitClass[std::min<unsigned>(ch, 128)];
        all &= kind;
        any |= kind;
    }
    if (body < name.size())
        unit(body, name[body]);
    NameScan scan;
    scan.control = any & kControlUnit;
    scan.quote = any & kQuoteUnit;
    scan.plain = body > 0 && (all & kWordUnit) && !IsDigit(name[0]) && name[0] != u'.';
    return scan;
}

inline NameScan ScanName(std::u16string_view name)
{
    return ScanName(name, [](std::size_t, char16_t) {});
}

// The same scan eight units at a time, for the lines of a whole sheet's
// names: a name of up to eight units is one load, one store and a few
// comparisons of all its units at once. The name is copied to `out` in
// whole pieces of eight, so `out` has room for its length rounded up to
// eight; `readable` is how many units from the name's start its buffer
// holds. A name whose last piece would be read past that buffer is
// scanned unit by unit instead.
using Units = std::uint16_t __attribute__((vector_size(16)));
using UnitMask = std::int16_t __attribute__((vector_size(16)));
constexpr std::size_t kPiece = sizeof(Units) / sizeof(char16_t);

constexpr std::size_t RoundedToPieces(std::size_t units)
{
    return (units + kPiece - 1) / kPiece * kPiece;
}

// Every unit `unit`. (Comparisons take two pieces: some compilers refuse a
// piece against a single unit.)
constexpr Units Splat(std::uint16_t unit)
{
    return Units{} + unit;
}

// The units from `first` to `first + span - 1`, by one unsigned comparison.
inline UnitMask InRange(Units u, std::uint16_t first, std::uint16_t span)
{
    return (u - Splat(first)) < Splat(span);
}

inline bool AnyLane(UnitMask mask)
{
    std::uint64_t halves[2];
    std::memcpy(halves, &mask, sizeof halves);
    return (halves[0] | halves[1]) != 0;
}

inline NameScan CopyAndScanByPieces(std::u16string_view name, std::size_t readable, char16_t* out)
{
    const std::size_t size = name.size();
    // Places in a name are counted in units of 16 bits: a longer name (no
    // sheet has one) is scanned unit by unit too.
    constexpr std::size_t kLongest = 0x7FFF;
    if (size > kLongest || RoundedToPieces(size) > readable)
        return ScanName(name, [out](std::size_t i, char16_t ch) { out[i] = ch; });
    const std::size_t body = size - (name.back() == u'$' ? 1 : 0);
    constexpr Units kLane = {0, 1, 2, 3, 4, 5, 6, 7};
    UnitMask notWord{}, control{}, quote{};
    for (std::size_t k = 0; k < size; k += kPiece) {
        Units u;
        std::memcpy(&u, name.data() + k, sizeof u);
        std::memcpy(out + k, &u, sizeof u);
        const Units at = kLane + Splat(static_cast<std::uint16_t>(k));
        const UnitMask inName = at < Splat(static_cast<std::uint16_t>(size));
        const UnitMask inBody = at < Splat(static_cast<std::uint16_t>(body));
        const UnitMask word = InRange(u, u'a', 26) | InRange(u, u'A', 26) | InRange(u, u'0', 10) | (u == Splat(u'_')) |
                              (u == Splat(u'.'));
        notWord |= inBody & ~word;
        control |= inName & (InRange(u, 0, 0x20) | (u == Splat(0x7F)));
        quote |= inName & (u == Splat(u'\''));
    }
    NameScan scan;
    scan.control = AnyLane(control);
    scan.quote = AnyLane(quote);
    scan.plain = body > 0 && !AnyLane(notWord) && !IsDigit(name[0]) && name[0] != u'.';
    return scan;
}

// Writes `name` in single quotes at `out`, its own quotes doubled; the end
// of what it wrote.
char16_t* WriteQuoted(char16_t* out, std::u16string_view name, bool quote)
{
    *out++ = u'\'';
    if (!quote) {
        std::memcpy(out, name.data(), name.size() * sizeof(char16_t));
        out += name.size();
    } else {
        for (const char16_t ch : name) {
            *out++ = ch;
            if (ch == u'\'')
                *out++ = ch;
        }
    }
    *out++ = u'\'';
    return out;
}

// A line written unit by unit into a string: room is asked for before each
// piece, so that a piece is copied by plain stores and not by an append
// call per name. The string grows by a stretch at a time within its
// reserved capacity (the stretch is filled while still in cache), and by
// doubling beyond it.
class LineWriter {
public:
    explicit LineWriter(std::u16string text) : m_text(std::move(text)), m_used(m_text.size()) {}

    // Room for at least `units` more units at the end.
    char16_t* Room(std::size_t units)
    {
        if (m_used + units > m_text.size())
            m_text.resize(std::max(m_used + units, m_text.size() + kStretch));
        return m_text.data() + m_used;
    }
    // What was written into the room ends at `end`.
    void Commit(const char16_t* end) { m_used = static_cast<std::size_t>(end - m_text.data()); }
    std::u16string Finish() &&
    {
        m_text.resize(m_used);
        return std::move(m_text);
    }

private:
    static constexpr std::size_t kStretch = std::size_t{1} << 14;
    std::u16string m_text;
    std::size_t m_used;
};

// A text as a report shows it: control characters as escapes, so that the
// report stays one line.
std::string Shown(const CString& text)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    CString visible;
    for (const char16_t ch : text.Str()) {
        if (ch == u'\n')
            visible += u"\\n";
        else if (ch == u'\r')
            visible += u"\\r";
        else if (ch == u'\t')
            visible += u"\\t";
        else if (ch < 0x20 || ch == 0x7F)
            visible += CString(u"\\x") + CString(char16_t(kHex[ch >> 4])) + CString(char16_t(kHex[ch & 0xF]));
        else
            visible += ch;
    }
    return visible.ToUtf8();
}

// Keeps the first entry of each name: a source naming a variable twice
// lists it once.
void ListEachNameOnce(CGUIArray<CGUIDataVariable>& list)
{
    const CGUIArray<CGUIDataVariable>& entries = list;
    const auto nameOf = [&entries](int i) -> std::u16string_view { return entries[i].GetVariableName().Str(); };
    const auto hashOf = [&entries](int i) { return entries[i].GetNameHash(); };
    CTextIndex names;
    const int count = list.GetSize();
    if (names.Build(count, nameOf, hashOf) == count)
        return;
    std::vector<bool> repeated(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        repeated[static_cast<std::size_t>(i)] = names.Find(nameOf(i), hashOf(i), nameOf) != i;
    list.RemoveMarked(repeated);
}

} // namespace

void CGUIBaseObj::Serialize(CArchive&)
{
    // Parent, document, dialog id and window state belong to the running
    // session; nothing of the base is stored.
}

void CGUIBaseObj::SetAll(IGrHitNodeInfo*) {}

void CGUIBaseObj::SetDocument(CDocument* document)
{
    m_pDocument = document;
}

void CGUIBaseObj::GetCommandInfoList(CLIST<CCmdInfo>&) const {}

CString CGUIBaseObj::GetCommandString() const
{
    CLIST<CCmdInfo> list;
    GetCommandInfoList(list);
    CString text;
    for (const auto& line : list) {
        if (!text.IsEmpty())
            text += u'\n';
        text += line.m_strCommand;
    }
    return text;
}

void CGUIBaseObj::UpdateCtrlList(CGUIArray<CGUIDataVariable>* target, const CGUIArray<CGUIDataVariable>* source,
                                 int bAdd)
{
    if (!target || !source || target == source)
        return;
    const auto nameOf = [](const CGUIArray<CGUIDataVariable>& list) {
        return [&list](int i) -> std::u16string_view { return list[i].GetVariableName().Str(); };
    };
    // The common cases cost a copy and an index, or nothing: a list filled
    // for the first time, and a list that already matches (a dialog opened
    // again).
    if (target->IsEmpty()) {
        if (bAdd) {
            *target = *source;
            ListEachNameOnce(*target);
        }
        return;
    }
    if (CompareTwoListCtrlArrays(*target, *source))
        return; // the same names in the same order: the target keeps its entries
    const auto hashOf = [source](int i) { return (*source)[i].GetNameHash(); };
    CTextIndex inSource;
    inSource.Build(source->GetSize(), nameOf(*source), hashOf);
    // Which source entries the target keeps, so that each is added once.
    std::vector<bool> kept(static_cast<std::size_t>(source->GetSize()), false);
    CGUIArray<CGUIDataVariable> updated;
    updated.Reserve(static_cast<std::size_t>(bAdd ? source->GetSize() : target->GetSize()));
    for (const auto& v : *target) {
        const int at = inSource.Find(v.GetVariableName().Str(), v.GetNameHash(), nameOf(*source));
        if (at >= 0 && !kept[static_cast<std::size_t>(at)]) {
            kept[static_cast<std::size_t>(at)] = true;
            updated.Add(v);
        }
    }
    if (bAdd)
        for (int i = 0; i < source->GetSize(); ++i)
            if (!kept[static_cast<std::size_t>(i)] &&
                inSource.Find((*source)[i].GetVariableName().Str(), hashOf(i), nameOf(*source)) == i)
                updated.Add((*source)[i]); // once, however often the source names it
    *target = std::move(updated);
}

void CGUIBaseObj::UpdateCtrlList(CGUIArray<CGUIDataVariable>* target, CGUIArray<CGUIDataVariable>&& source, int bAdd)
{
    if (target && target != &source && target->IsEmpty() && bAdd) {
        *target = std::move(source);
        ListEachNameOnce(*target);
        return;
    }
    UpdateCtrlList(target, &source, bAdd);
}

void CGUIBaseObj::FillListSource() {}
void CGUIBaseObj::SetEditAttribute() {}

void CGUIBaseObj::GetParent(CGUIBaseObj*& parent) const
{
    parent = m_pParent;
}

void CGUIBaseObj::SetParent(CGUIBaseObj* parent)
{
    m_pParent = parent;
}

void CGUIBaseObj::ReassignDefaultValue() {}
void CGUIBaseObj::AddRemCommand() {}

void CGUIBaseObj::SetstrDialog(unsigned int dialogId)
{
    m_nDialogID = dialogId;
    m_strDialog = kal::framework::LoadResourceString(dialogId);
}

int CGUIBaseObj::IsNumeric(const CString& text)
{
    CString t = text;
    t.Trim();
    const char16_t separator = kal::framework::DecimalSeparator();
    int i = 0;
    const int n = t.GetLength();
    if (i < n && (t[i] == u'+' || t[i] == u'-'))
        ++i;
    int digits = 0;
    while (i < n && IsDigit(t[i]))
        ++i, ++digits;
    if (i < n && (t[i] == u'.' || t[i] == separator)) {
        ++i;
        while (i < n && IsDigit(t[i]))
            ++i, ++digits;
    }
    if (digits == 0)
        return 0;
    if (i < n && (t[i] == u'e' || t[i] == u'E')) {
        ++i;
        if (i < n && (t[i] == u'+' || t[i] == u'-'))
            ++i;
        int exponentDigits = 0;
        while (i < n && IsDigit(t[i]))
            ++i, ++exponentDigits;
        if (exponentDigits == 0)
            return 0;
    }
    return i == n ? 1 : 0;
}

int CGUIBaseObj::CheckStringPresentinListCtrlArray(const CGUIArray<CGUIDataVariable>& list, const CString& name)
{
    for (const auto& v : list)
        if (v.GetVariableName() == name)
            return 1;
    return 0;
}

int CGUIBaseObj::CompareTwoListCtrlArrays(const CGUIArray<CGUIDataVariable>& a, const CGUIArray<CGUIDataVariable>& b)
{
    if (a.GetSize() != b.GetSize())
        return 0;
    for (int i = 0; i < a.GetSize(); ++i)
        if (a[i].GetVariableName() != b[i].GetVariableName())
            return 0;
    return 1;
}

void CGUIBaseObj::GetListCtrlArrayElements(const CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& out,
                                           LISTARRAYSELECTIONTYPE which, int bAppend)
{
    if (!bAppend)
        out.RemoveAll();
    for (const auto& v : source)
        if (which == LIST_ALL_ELEMENTS || v.IsSelected())
            out.Add(v);
}

void CGUIBaseObj::GetUniqueArrFromExpn(const CString& expression, CStringArray& names)
{
    names.RemoveAll();
    std::unordered_set<CString> seen;
    const auto add = [&](const CString& name) {
        if (!name.IsEmpty() && seen.insert(name).second)
            names.Add(name);
    };
    const int n = expression.GetLength();
    for (int i = 0; i < n;) {
        const char16_t ch = expression[i];
        if (ch == u'\'') {
            // Quoted name; a doubled quote stands for one quote.
            CString name;
            ++i;
            while (i < n) {
                if (expression[i] == u'\'') {
                    if (i + 1 < n && expression[i + 1] == u'\'') {
                        name += u'\'';
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                name += expression[i++];
            }
            add(name);
        } else if (IsAsciiLetter(ch) || ch == u'_') {
            const int start = i;
            while (i < n && (IsAsciiLetter(expression[i]) || IsDigit(expression[i]) || expression[i] == u'_' ||
                             expression[i] == u'.'))
                ++i;
            if (i < n && expression[i] == u'$')
                ++i;
            add(expression.Mid(start, i - start));
        } else if (IsDigit(ch)) {
            // A number (exponent included) names no variable.
            while (i < n && (IsDigit(expression[i]) || expression[i] == u'.'))
                ++i;
            if (i + 1 < n && (expression[i] == u'e' || expression[i] == u'E') &&
                (IsDigit(expression[i + 1]) || expression[i + 1] == u'+' || expression[i + 1] == u'-')) {
                i += 2;
                while (i < n && IsDigit(expression[i]))
                    ++i;
            }
        } else {
            ++i;
        }
    }
}

void CGUIBaseObj::ReplaceEndChar(CString& text, char16_t oldChar, char16_t newChar)
{
    if (!text.IsEmpty() && text[text.GetLength() - 1] == oldChar)
        text.SetAt(text.GetLength() - 1, newChar);
}

CString CGUIBaseObj::GetSingleLineMatrixString(const CString& text)
{
    CString result;
    CString row;
    const auto flush = [&] {
        row.Trim();
        if (!row.IsEmpty()) {
            if (!result.IsEmpty())
                result += u';';
            result += row;
        }
        row.Empty();
    };
    for (const char16_t ch : text.Str()) {
        if (ch == u'\n' || ch == u'\r' || ch == u';')
            flush();
        else
            row += (ch < 0x20 ? u' ' : ch);
    }
    flush();
    return result;
}

void CGUIBaseObj::AddModuleCmd(unsigned int id, CLIST<CCmdInfo>& list) const
{
    AppendCommandLine(list, GetModuleCommand(id));
}

CString CGUIBaseObj::GetModuleCommand(unsigned int id) const
{
    return kal::framework::LoadResourceString(id);
}

bool CGUIBaseObj::IsPlainIdentifier(const CString& name)
{
    return ScanName(name).plain;
}

CString CGUIBaseObj::QuoteName(const CString& name)
{
    const NameScan scan = ScanName(name);
    if (scan.plain)
        return name;
    std::u16string quoted(2 * static_cast<std::size_t>(name.GetLength()) + 2, u'\0');
    quoted.resize(static_cast<std::size_t>(WriteQuoted(quoted.data(), name, scan.quote) - quoted.data()));
    return CString(std::move(quoted));
}

void CGUIBaseObj::AddVariables(CString& line, const CGUIArray<CGUIDataVariable>& list, const CString& separator) const
{
    if (list.IsEmpty())
        return;
    // The line's capacity: every name quoted and as long as the longest of
    // a few spread over the list (names of a sheet tend to be alike,
    // numbered ones longest at the end); a line that needs more grows by
    // doubling.
    const std::u16string_view joiner = separator;
    const std::size_t count = static_cast<std::size_t>(list.GetSize());
    constexpr std::size_t kSamples = 8;
    constexpr std::size_t kPrefetchDistance = 16;
    std::size_t longest = 0;
    for (std::size_t k = 0; k < kSamples; ++k) {
        const auto& sample = list.begin()[static_cast<std::ptrdiff_t>(k * (count - 1) / (kSamples - 1))];
        longest = std::max(longest, sample.GetVariableName().Str().size());
    }
    // The names are scanned for control characters on the way; the text
    // around them is looked at here, so that the finished line need not be.
    const bool printable = !ContainsControlCharacter(line) && !ContainsControlCharacter(separator);
    std::u16string text = line.TakeText();
    text.reserve(text.size() + (longest + 2 + joiner.size()) * count);
    LineWriter out(std::move(text));
    bool first = true;
    const CGUIDataVariable* const entries = &*list.begin();
    for (std::size_t i = 0; i < count; ++i) {
        const CGUIDataVariable& v = entries[i];
        if (i + kPrefetchDistance < count)
            entries[i + kPrefetchDistance].PrefetchName();
        const std::u16string& buffer = v.GetVariableName().Str();
        const std::u16string_view name = buffer;
        if (name.empty())
            continue; // an entry whose name was not stored names no variable
        // Room for the name at its longest: quoted, every unit a quote, or
        // copied in whole pieces.
        char16_t* at = out.Room(joiner.size() + std::max(2 * name.size() + 2, RoundedToPieces(name.size())));
        if (!first) {
            for (const char16_t ch : joiner)
                *at++ = ch;
        }
        // Copied as it is while scanning: most names are plain.
        const NameScan scan = CopyAndScanByPieces(name, buffer.capacity() + 1, at);
        if (scan.control) {
            // Such a name could start a second command line: leave it out.
            CKalAssertDlg("framework/GUIBaseObj", __LINE__,
                          "the variable \"" + Shown(v.GetVariableName()) +
                              "\" holds a control character and is left out")
                .DoPrint();
            continue;
        }
        out.Commit(scan.plain ? at + name.size() : WriteQuoted(at, name, scan.quote));
        first = false;
    }
    line = printable ? CString::KnownPrintable(std::move(out).Finish()) : CString(std::move(out).Finish());
}

CString CGUIBaseObj::GetMixedDataVariable(const CGUIArray<CGUIDataVariable>& list, const CString& joiner) const
{
    CString text;
    AddVariables(text, list, joiner);
    return text;
}

CString CGUIBaseObj::AddEditValueCmd(int value, int defaultValue, int bForce, const CString& keyword,
                                     int bCondition) const
{
    if (!bCondition || !(bForce || value != defaultValue || kal::framework::WriteEveryOption()))
        return {};
    return keyword + NumberText(value);
}

CString CGUIBaseObj::AddEditValueCmd(double value, double defaultValue, int bForce, const CString& keyword,
                                     int bCondition) const
{
    if (!bCondition || !(bForce || value != defaultValue || kal::framework::WriteEveryOption()))
        return {};
    return keyword + NumberText(value);
}

CString CGUIBaseObj::AddEditValueCmd(const CString& value, const CString& defaultValue, int bForce,
                                     const CString& keyword, int bCondition) const
{
    if (!bCondition || !(bForce || value != defaultValue || kal::framework::WriteEveryOption()))
        return {};
    if (ContainsControlCharacter(value)) {
        CKalAssertDlg("framework/GUIBaseObj", __LINE__).DoPrint();
        return {};
    }
    return keyword + value;
}

CString CGUIBaseObj::AppendLimits(const CGUIData<double>& lower, const CGUIData<double>& upper, const CString& keyword,
                                  int bCondition) const
{
    if (!bCondition)
        return {};
    return keyword + NumberText(lower.m_Value) + LimitsSeparator() + NumberText(upper.m_Value);
}

void CGUIBaseObj::AddStringCmd(const CString& text, CLIST<CCmdInfo>& list, const CString& prefix, const CString& suffix,
                               int bAppend) const
{
    if (bAppend)
        AppendCommandLine(list, prefix + text + suffix);
}

void CGUIBaseObj::AddSaveCmd(const CString& fileName, CLIST<CCmdInfo>& list, const CString& option,
                             const CString& option2) const
{
    if (ContainsControlCharacter(fileName)) {
        CKalAssertDlg("framework/GUIBaseObj", __LINE__).DoPrint();
        return;
    }
    CString quoted = fileName;
    quoted.Replace(u"'", u"''");
    CString line = u"SAVE '" + quoted + u"'";
    if (!option.IsEmpty())
        line += u" / " + option;
    if (!option2.IsEmpty())
        line += u" " + option2;
    AppendCommandLine(list, line);
}

void AppendCommandLine(CLIST<CCmdInfo>& list, CString text)
{
    if (text.IsEmpty())
        return;
    if (ContainsControlCharacter(text)) {
        CKalAssertDlg("framework/CmdInfo", __LINE__).DoPrint();
        return;
    }
    list.AddTail(CCmdInfo(std::move(text), 0));
}
