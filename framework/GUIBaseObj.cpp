#include "framework/GUIBaseObj.h"

#include "host/KalAssertDlg.h"
#include "platform/TextIndex.h"

#include <unordered_set>

IMPLEMENT_DYNAMIC(CGUIBaseObj, CObject)

namespace {

bool IsAsciiLetter(char16_t ch)
{
    return (ch >= u'a' && ch <= u'z') || (ch >= u'A' && ch <= u'Z');
}

bool IsDigit(char16_t ch)
{
    return ch >= u'0' && ch <= u'9';
}

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
        if (!bAdd)
            return;
        *target = *source;
        CTextIndex names;
        const int count = target->GetSize();
        if (names.Build(count, nameOf(*target)) == count)
            return;
        // A source naming a variable twice lists it once.
        std::vector<bool> repeated(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            repeated[static_cast<std::size_t>(i)] = names.Find((*target)[i].GetVariableName().Str(), nameOf(*target)) != i;
        target->RemoveMarked(repeated);
        return;
    }
    if (CompareTwoListCtrlArrays(*target, *source))
        return; // the same names in the same order: the target keeps its entries
    CTextIndex inSource;
    inSource.Build(source->GetSize(), nameOf(*source));
    // Which source entries the target keeps, so that each is added once.
    std::vector<bool> kept(static_cast<std::size_t>(source->GetSize()), false);
    CGUIArray<CGUIDataVariable> updated;
    updated.Reserve(static_cast<std::size_t>(bAdd ? source->GetSize() : target->GetSize()));
    for (const auto& v : *target) {
        const int at = inSource.Find(v.GetVariableName().Str(), nameOf(*source));
        if (at >= 0 && !kept[static_cast<std::size_t>(at)]) {
            kept[static_cast<std::size_t>(at)] = true;
            updated.Add(v);
        }
    }
    if (bAdd)
        for (int i = 0; i < source->GetSize(); ++i)
            if (!kept[static_cast<std::size_t>(i)] && inSource.Find((*source)[i].GetVariableName().Str(), nameOf(*source)) == i)
                updated.Add((*source)[i]); // once, however often the source names it
    *target = std::move(updated);
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

void CGUIBaseObj::GetListCtrlArrayElements(const CGUIArray<CGUIDataVariable>& source,
                                           CGUIArray<CGUIDataVariable>& out, LISTARRAYSELECTIONTYPE which,
                                           int bAppend)
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
    const int n = name.GetLength();
    if (n == 0 || !(IsAsciiLetter(name[0]) || name[0] == u'_'))
        return false;
    for (int i = 1; i < n; ++i) {
        const char16_t ch = name[i];
        if (ch == u'$' && i == n - 1)
            return true;
        if (!(IsAsciiLetter(ch) || IsDigit(ch) || ch == u'_' || ch == u'.'))
            return false;
    }
    return true;
}

CString CGUIBaseObj::QuoteName(const CString& name)
{
    if (IsPlainIdentifier(name))
        return name;
    CString quoted = name;
    quoted.Replace(u"'", u"''");
    return u"'" + quoted + u"'";
}

void CGUIBaseObj::AddVariables(CString& line, const CGUIArray<CGUIDataVariable>& list, const CString& separator) const
{
    bool first = true;
    for (const auto& v : list) {
        const CString& name = v.GetVariableName();
        if (name.IsEmpty())
            continue; // an entry whose name was not stored names no variable
        if (ContainsControlCharacter(name)) {
            // Such a name could start a second command line: leave it out.
            CKalAssertDlg("framework/GUIBaseObj", __LINE__,
                          "the variable \"" + Shown(name) + "\" holds a control character and is left out")
                .DoPrint();
            continue;
        }
        if (!first)
            line += separator;
        line += QuoteName(name);
        first = false;
    }
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

CString CGUIBaseObj::AppendLimits(const CGUIData<double>& lower, const CGUIData<double>& upper,
                                  const CString& keyword, int bCondition) const
{
    if (!bCondition)
        return {};
    return keyword + NumberText(lower.m_Value) + u"," + NumberText(upper.m_Value);
}

void CGUIBaseObj::AddStringCmd(const CString& text, CLIST<CCmdInfo>& list, const CString& prefix,
                               const CString& suffix, int bAppend) const
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

void AppendCommandLine(CLIST<CCmdInfo>& list, const CString& text)
{
    if (text.IsEmpty())
        return;
    if (ContainsControlCharacter(text)) {
        CKalAssertDlg("framework/CmdInfo", __LINE__).DoPrint();
        return;
    }
    list.AddTail(CCmdInfo(text, 0));
}
