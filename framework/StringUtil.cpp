#include "framework/StringUtil.h"

#include "host/KalAssertDlg.h"

int CStringUtil::FindOutsideQuotes(const CString& line, const CString& text, int start)
{
    const std::u16string_view view = line.Str();
    const std::u16string_view wanted = text.Str();
    if (wanted.empty())
        return start <= static_cast<int>(view.size()) ? start : -1;
    bool quoted = false;
    for (std::size_t i = 0; i < view.size(); ++i) {
        if (!quoted && static_cast<int>(i) >= start && view.substr(i, wanted.size()) == wanted)
            return static_cast<int>(i);
        // A doubled quote inside a name closes and reopens it: still inside.
        if (view[i] == u'\'')
            quoted = !quoted;
    }
    return -1;
}

int CStringUtil::Resolve(const CLIST<CCmdInfo>& list, int index)
{
    if (index == -1)
        index = list.GetCount() - 1;
    return index >= 0 && index < list.GetCount() ? index : -1;
}

int CStringUtil::SearchString(const CLIST<CCmdInfo>& list, const CString& text)
{
    int index = 0;
    for (const auto& line : list) {
        if (FindOutsideQuotes(line.m_strCommand, text) >= 0)
            return index;
        ++index;
    }
    return -1;
}

int CStringUtil::SearchStringAtBeginning(const CLIST<CCmdInfo>& list, const CString& text)
{
    int index = 0;
    for (const auto& line : list) {
        if (line.m_strCommand.Str().starts_with(text.Str()))
            return index;
        ++index;
    }
    return -1;
}

bool CStringUtil::StringFoundAtIndex(const CLIST<CCmdInfo>& list, const CString& text, int index)
{
    index = Resolve(list, index);
    return index >= 0 && FindOutsideQuotes(list.GetAt(index).m_strCommand, text) >= 0;
}

void CStringUtil::ReplaceStringAt(CLIST<CCmdInfo>& list, int index, const CString& oldText, const CString& newText)
{
    index = Resolve(list, index);
    if (index < 0 || oldText.IsEmpty())
        return;
    if (ContainsControlCharacter(newText)) {
        CKalAssertDlg("framework/StringUtil", __LINE__).DoPrint();
        return;
    }
    CString& line = list.GetAt(index).m_strCommand;
    const int at = FindOutsideQuotes(line, oldText);
    if (at >= 0)
        line = line.Left(at) + newText + line.Mid(at + oldText.GetLength());
}

void CStringUtil::ConcatStringAt(CLIST<CCmdInfo>& list, const CString& text, int index, const CString* second)
{
    index = Resolve(list, index);
    if (index < 0)
        return;
    const CString addition = second ? text + *second : text;
    if (ContainsControlCharacter(addition)) {
        CKalAssertDlg("framework/StringUtil", __LINE__).DoPrint();
        return;
    }
    list.GetAt(index).m_strCommand += addition;
}

void CStringUtil::InsertStringAt(CLIST<CCmdInfo>& list, const CString& text, int index, const CString* second)
{
    if (index == -1)
        index = list.IsEmpty() ? 0 : list.GetCount() - 1;
    if (index < 0 || index > list.GetCount())
        return;
    const CString line = second ? text + *second : text;
    if (line.IsEmpty())
        return;
    if (ContainsControlCharacter(line)) {
        CKalAssertDlg("framework/StringUtil", __LINE__).DoPrint();
        return;
    }
    list.InsertAt(index, CCmdInfo(line, 0));
}

void CStringUtil::RemoveRedundantSlash(CLIST<CCmdInfo>& list, int index)
{
    index = Resolve(list, index);
    if (index < 0)
        return;
    CString& line = list.GetAt(index).m_strCommand;
    const auto& text = line.Str();
    const auto slashAfter = [&](std::size_t from) {
        const int at = FindOutsideQuotes(line, u"/", static_cast<int>(from));
        return at < 0 ? std::u16string::npos : static_cast<std::size_t>(at);
    };
    std::u16string result;
    std::size_t start = slashAfter(0);
    if (start == std::u16string::npos)
        return;
    result.assign(text, 0, start);
    while (start != std::u16string::npos) {
        const std::size_t next = slashAfter(start + 1);
        const std::u16string_view segment(text.data() + start + 1,
                                          (next == std::u16string::npos ? text.size() : next) - start - 1);
        if (segment.find_first_not_of(u" \t") != std::u16string_view::npos) {
            result += u'/';
            result += segment;
        }
        start = next;
    }
    line = CString(std::move(result));
}

void CStringUtil::AppendQuotes(CString& text)
{
    CString quoted = text;
    quoted.Replace(u"'", u"''");
    text = u"'" + quoted + u"'";
}

void CStringUtil::RemoveTrailingChar(CString& text, char16_t ch)
{
    if (!text.IsEmpty() && text[text.GetLength() - 1] == ch)
        text = text.Left(text.GetLength() - 1);
}

void CStringUtil::Trim(CString& text, TRIMSTR side)
{
    if (side == TRIM_LEFT || side == TRIM_BOTH)
        text.TrimLeft();
    if (side == TRIM_RIGHT || side == TRIM_BOTH)
        text.TrimRight();
}

void CStringUtil::GetStringLines(const CString& text, CStringArray& lines)
{
    lines.RemoveAll();
    CString current;
    const int n = text.GetLength();
    for (int i = 0; i < n; ++i) {
        const char16_t ch = text[i];
        if (ch == u'\r' || ch == u'\n') {
            lines.Add(current);
            current.Empty();
            if (ch == u'\r' && i + 1 < n && text[i + 1] == u'\n')
                ++i;
        } else {
            current += ch;
        }
    }
    if (!current.IsEmpty())
        lines.Add(current);
}
