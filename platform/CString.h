// CString: the desktop framework's wide string, held as UTF-16 code units.
// Value semantics; conversion to and from UTF-8 happens only at the edges
// (files, terminals), never inside the module.
#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class CString {
public:
    CString() = default;
    CString(const char16_t* text) : m_str(text ? text : u"") {}
    CString(std::u16string text) : m_str(std::move(text)) {}
    CString(std::u16string_view text) : m_str(text) {}
    CString(char16_t ch, int count = 1) : m_str(count > 0 ? static_cast<std::size_t>(count) : 0, ch) {}

    static CString FromUtf8(std::string_view utf8);
    // 8-bit text of the framework's single-byte code page (Latin-1 here).
    static CString FromLatin1(std::string_view bytes);
    std::string ToUtf8() const;

    int GetLength() const { return static_cast<int>(m_str.size()); }
    bool IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }
    char16_t GetAt(int index) const { return m_str.at(static_cast<std::size_t>(index)); }
    char16_t operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char16_t ch) { m_str.at(static_cast<std::size_t>(index)) = ch; }
    const char16_t* GetString() const { return m_str.c_str(); }
    const std::u16string& Str() const { return m_str; }
    operator std::u16string_view() const { return m_str; }

    // -1 when not found, as in the framework.
    int Find(char16_t ch, int start = 0) const;
    int Find(std::u16string_view sub, int start = 0) const;
    int ReverseFind(char16_t ch) const;
    // Replaces every occurrence; returns how many were replaced.
    int Replace(std::u16string_view oldText, std::u16string_view newText);
    int Remove(char16_t ch);

    CString Left(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Right(int count) const;

    // Blanks are the white-space characters: space, tab, CR, LF, VT, FF.
    CString& TrimLeft();
    CString& TrimRight();
    CString& Trim();
    CString& TrimLeft(char16_t ch);
    CString& TrimRight(char16_t ch);

    CString& MakeUpper();

    // Numbers as command text: integers in decimal; doubles with six
    // significant digits in the shortest %g form ("0.95", "1e-12", "15"),
    // with the given decimal separator.
    void Format(int value);
    void Format(unsigned int value);
    void Format(double value, char16_t decimalSeparator = u'.');
    static CString FromNumber(int value);
    static CString FromNumber(unsigned int value);
    static CString FromNumber(double value, char16_t decimalSeparator = u'.');

    CString& operator+=(const CString& other) { m_str += other.m_str; return *this; }
    CString& operator+=(const char16_t* other) { m_str += other; return *this; }
    CString& operator+=(char16_t ch) { m_str += ch; return *this; }

    friend CString operator+(CString a, const CString& b) { a += b; return a; }
    friend CString operator+(CString a, const char16_t* b) { a += b; return a; }
    friend CString operator+(const char16_t* a, const CString& b) { return CString(a) += b; }
    friend CString operator+(CString a, char16_t b) { a += b; return a; }

    friend bool operator==(const CString& a, const CString& b) = default;
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) = default;
    friend bool operator==(const CString& a, const char16_t* b) { return a.m_str == (b ? b : u""); }

private:
    std::u16string m_str;
};

template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& s) const noexcept { return std::hash<std::u16string>{}(s.Str()); }
};

// True for code units below 0x20 and DEL, i.e. anything that could break a
// command line apart if written into it.
bool ContainsControlCharacter(const CString& text);
