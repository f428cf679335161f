#include "platform/CString.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cstdio>

namespace {

bool IsBlank(char16_t ch)
{
    return ch == u' ' || ch == u'\t' || ch == u'\r' || ch == u'\n' || ch == u'\v' || ch == u'\f';
}

void AppendUtf16(std::u16string& out, char32_t cp)
{
    if (cp < 0x10000) {
        out += static_cast<char16_t>(cp);
    } else {
        cp -= 0x10000;
        out += static_cast<char16_t>(0xD800 + (cp >> 10));
        out += static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
    }
}

void AppendUtf8(std::string& out, char32_t cp)
{
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

constexpr char32_t kReplacement = 0xFFFD;

} // namespace

const std::u16string& CString::EmptyText()
{
    static const std::u16string empty;
    return empty;
}

void CString::Free(Rep* rep) noexcept
{
    delete rep;
}

std::u16string& CString::Unshare()
{
    if (!m_rep) {
        m_rep = new Rep{1, false, {}};
    } else if (m_rep->refs > 1) {
        Rep* own = new Rep{1, false, m_rep->text};
        --m_rep->refs;
        m_rep = own;
    }
    return m_rep->text;
}

std::u16string CString::TakeText()
{
    // The sole owner's text moves out; a shared text is copied.
    std::u16string text;
    if (m_rep && m_rep->refs == 1)
        text = std::move(m_rep->text);
    else
        text = Str();
    Release();
    return text;
}

CString CString::FromUtf8(std::string_view utf8)
{
    std::u16string out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const int extra = lead < 0x80           ? 0
                          : (lead >> 5) == 0x6  ? 1
                          : (lead >> 4) == 0xE  ? 2
                          : (lead >> 3) == 0x1E ? 3
                                                : -1;
        char32_t cp = 0;
        bool ok = extra >= 0 && i + static_cast<std::size_t>(extra) < utf8.size();
        if (ok) {
            cp = extra == 0 ? lead : lead & (0x3Fu >> extra);
            for (int k = 1; k <= extra && ok; ++k) {
                const auto cont = static_cast<unsigned char>(utf8[i + static_cast<std::size_t>(k)]);
                ok = (cont & 0xC0) == 0x80;
                cp = (cp << 6) | (cont & 0x3F);
            }
            constexpr char32_t minimum[] = {0, 0x80, 0x800, 0x10000};
            ok = ok && cp >= minimum[extra] && cp <= 0x10FFFF && !(cp >= 0xD800 && cp <= 0xDFFF);
        }
        if (!ok) {
            // One replacement character per undecodable byte, then resync.
            AppendUtf16(out, kReplacement);
            ++i;
            continue;
        }
        AppendUtf16(out, cp);
        i += static_cast<std::size_t>(extra) + 1;
    }
    return CString(std::move(out));
}

CString CString::FromLatin1(std::string_view bytes)
{
    std::u16string out(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), out.begin(),
                   [](char c) { return static_cast<char16_t>(static_cast<unsigned char>(c)); });
    return CString(std::move(out));
}

std::string CString::ToUtf8() const
{
    const std::u16string& text = Str();
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t cp = text[i];
        if (cp >= 0xD800 && cp <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
            cp = 0x10000 + ((cp - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            ++i;
        } else if (cp >= 0xD800 && cp <= 0xDFFF) {
            cp = kReplacement;
        }
        AppendUtf8(out, cp);
    }
    return out;
}

int CString::Find(char16_t ch, int start) const
{
    if (start < 0 || start > GetLength())
        return -1;
    const auto pos = Str().find(ch, static_cast<std::size_t>(start));
    return pos == std::u16string::npos ? -1 : static_cast<int>(pos);
}

int CString::Find(std::u16string_view sub, int start) const
{
    if (start < 0 || start > GetLength())
        return -1;
    const auto pos = Str().find(sub, static_cast<std::size_t>(start));
    return pos == std::u16string::npos ? -1 : static_cast<int>(pos);
}

int CString::ReverseFind(char16_t ch) const
{
    const auto pos = Str().rfind(ch);
    return pos == std::u16string::npos ? -1 : static_cast<int>(pos);
}

int CString::Replace(std::u16string_view oldText, std::u16string_view newText)
{
    if (oldText.empty())
        return 0;
    const std::u16string& text = Str();
    std::u16string out;
    int count = 0;
    std::size_t from = 0;
    for (auto pos = text.find(oldText); pos != std::u16string::npos; pos = text.find(oldText, from)) {
        out.append(text, from, pos - from);
        out += newText;
        from = pos + oldText.size();
        ++count;
    }
    if (count > 0) {
        out.append(text, from, std::u16string::npos);
        *this = CString(std::move(out));
    }
    return count;
}

int CString::Remove(char16_t ch)
{
    if (Find(ch) < 0)
        return 0;
    std::u16string& text = Mutable();
    const auto before = text.size();
    std::erase(text, ch);
    return static_cast<int>(before - text.size());
}

CString CString::Left(int count) const
{
    count = std::clamp(count, 0, GetLength());
    return count == GetLength() ? *this : CString(Str().substr(0, static_cast<std::size_t>(count)));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    first = std::clamp(first, 0, GetLength());
    count = std::clamp(count, 0, GetLength() - first);
    if (first == 0 && count == GetLength())
        return *this;
    return CString(Str().substr(static_cast<std::size_t>(first), static_cast<std::size_t>(count)));
}

CString CString::Right(int count) const
{
    count = std::clamp(count, 0, GetLength());
    return count == GetLength() ? *this : CString(Str().substr(Str().size() - static_cast<std::size_t>(count)));
}

CString& CString::TrimLeft()
{
    const std::u16string& text = Str();
    const auto blanks = std::find_if_not(text.begin(), text.end(), IsBlank) - text.begin();
    if (blanks > 0)
        Mutable().erase(0, static_cast<std::size_t>(blanks));
    return *this;
}

CString& CString::TrimRight()
{
    if (!IsEmpty() && IsBlank(Str().back())) {
        std::u16string& text = Mutable();
        while (!text.empty() && IsBlank(text.back()))
            text.pop_back();
    }
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::TrimLeft(char16_t ch)
{
    const auto first = Str().find_first_not_of(ch);
    if (first != 0)
        Mutable().erase(0, first == std::u16string::npos ? Str().size() : first);
    return *this;
}

CString& CString::TrimRight(char16_t ch)
{
    if (!IsEmpty() && Str().back() == ch) {
        std::u16string& text = Mutable();
        while (!text.empty() && text.back() == ch)
            text.pop_back();
    }
    return *this;
}

CString& CString::MakeUpper()
{
    if (std::none_of(Str().begin(), Str().end(), [](char16_t ch) { return ch >= u'a' && ch <= u'z'; }))
        return *this;
    for (auto& ch : Mutable())
        if (ch >= u'a' && ch <= u'z')
            ch = static_cast<char16_t>(ch - u'a' + u'A');
    return *this;
}

void CString::Format(int value)
{
    *this = FromNumber(value);
}

void CString::Format(unsigned int value)
{
    *this = FromNumber(value);
}

void CString::Format(double value, char16_t decimalSeparator)
{
    *this = FromNumber(value, decimalSeparator);
}

CString CString::FromNumber(int value)
{
    return FromLatin1(std::to_string(value));
}

CString CString::FromNumber(unsigned int value)
{
    return FromLatin1(std::to_string(value));
}

CString CString::FromNumber(double value, char16_t decimalSeparator)
{
    // std::to_chars is locale-independent (a GUI toolkit may have changed
    // LC_NUMERIC), and its general format with precision 6 is exactly %g.
    char buffer[64];
    if (value == 0)
        value = 0; // a negative zero is written as 0
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
    CString text = FromLatin1(std::string_view(buffer, static_cast<std::size_t>(result.ptr - buffer)));
    if (decimalSeparator != u'.')
        text.Replace(u".", std::u16string_view(&decimalSeparator, 1));
    return text;
}

namespace {

bool ContainsControlUnit(std::u16string_view text)
{
    const auto control = [](char16_t ch) { return ch < 0x20 || ch == 0x7F; };
    // Whole command lines of a million names come through here: blocks
    // tested without an exit inside let the compiler test many units at once.
    constexpr std::size_t kBlock = 64;
    std::u16string_view rest = text;
    for (; rest.size() >= kBlock; rest.remove_prefix(kBlock)) {
        unsigned short found = 0;
        for (std::size_t i = 0; i < kBlock; ++i)
            found |= static_cast<unsigned short>(control(rest[i]));
        if (found)
            return true;
    }
    return std::any_of(rest.begin(), rest.end(), control);
}

} // namespace

CString CString::KnownPrintable(std::u16string text)
{
    CString known(std::move(text));
    if (known.m_rep)
        known.m_rep->printable = true;
    assert(!ContainsControlCharacter(CString(known.Str())));
    return known;
}

bool ContainsControlCharacter(const CString& text)
{
    if (!text.m_rep || text.m_rep->printable)
        return false;
    const bool found = ContainsControlUnit(text.Str());
    text.m_rep->printable = !found;
    return found;
}
