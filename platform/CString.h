// CString: the desktop framework's wide string, held as UTF-16 code units.
// Value semantics; conversion to and from UTF-8 happens only at the edges
// (files, terminals), never inside the module.
//
// Like the framework's own string, copies share one buffer until one of
// them changes: a variable's name copied into lists, list controls and
// indexes costs a count, not an allocation. The count is not atomic: the
// module's strings live on the host's user-interface thread.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class CString {
public:
    CString() = default;
    CString(const char16_t* text) : CString(std::u16string_view(text ? text : u"")) {}
    CString(std::u16string text) : m_rep(text.empty() ? nullptr : new Rep{1, false, std::move(text)}) {}
    CString(std::u16string_view text) : m_rep(text.empty() ? nullptr : new Rep{1, false, std::u16string(text)}) {}
    CString(char16_t ch, int count = 1) : CString(std::u16string(count > 0 ? static_cast<std::size_t>(count) : 0, ch))
    {
    }
    CString(const CString& other) noexcept : m_rep(other.m_rep)
    {
        if (m_rep)
            ++m_rep->refs;
    }
    CString(CString&& other) noexcept : m_rep(other.m_rep) { other.m_rep = nullptr; }
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): counts first
    CString& operator=(const CString& other) noexcept
    {
        Rep* shared = other.m_rep; // counted first: `other` may be this string
        if (shared)
            ++shared->refs;
        Release();
        m_rep = shared;
        return *this;
    }
    CString& operator=(CString&& other) noexcept
    {
        if (this != &other) {
            Release();
            m_rep = other.m_rep;
            other.m_rep = nullptr;
        }
        return *this;
    }
    ~CString() { Release(); }
    void swap(CString& other) noexcept { std::swap(m_rep, other.m_rep); }

    // `text` from a writer that has looked at every unit of it and found no
    // control character (see ContainsControlCharacter below), so that the
    // command list it goes to does not read a line of a million names
    // again. Debug builds check the claim.
    static CString KnownPrintable(std::u16string text);

    static CString FromUtf8(std::string_view utf8);
    // 8-bit text of the framework's single-byte code page (Latin-1 here).
    static CString FromLatin1(std::string_view bytes);
    std::string ToUtf8() const;

    int GetLength() const { return static_cast<int>(Str().size()); }
    bool IsEmpty() const { return !m_rep || m_rep->text.empty(); }
    void Empty() { CString().swap(*this); }
    char16_t GetAt(int index) const { return Str().at(static_cast<std::size_t>(index)); }
    char16_t operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char16_t ch) { Mutable().at(static_cast<std::size_t>(index)) = ch; }
    const char16_t* GetString() const { return Str().c_str(); }
    const std::u16string& Str() const { return m_rep ? m_rep->text : EmptyText(); }
    operator std::u16string_view() const { return Str(); }
    // Whether this string shares its buffer with `other` (no copy was made).
    bool SharesBufferWith(const CString& other) const { return m_rep && m_rep == other.m_rep; }

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

    CString& operator+=(const CString& other)
    {
        if (IsEmpty())
            return *this = other;
        Mutable() += other.Str();
        return *this;
    }
    CString& operator+=(std::u16string_view other)
    {
        if (!other.empty())
            Mutable() += other;
        return *this;
    }
    CString& operator+=(const char16_t* other) { return *this += std::u16string_view(other ? other : u""); }
    CString& operator+=(char16_t ch)
    {
        Mutable() += ch;
        return *this;
    }
    // Room for `length` units, so that a line built piece by piece grows once.
    void Reserve(int length) { Mutable().reserve(static_cast<std::size_t>(length > 0 ? length : 0)); }
    // The text as a string of its own to build on, this string left empty:
    // moved out, not copied, unless another string shares it.
    std::u16string TakeText();

    friend CString operator+(CString a, const CString& b)
    {
        a += b;
        return a;
    }
    friend CString operator+(CString a, const char16_t* b)
    {
        a += b;
        return a;
    }
    friend CString operator+(const char16_t* a, const CString& b) { return CString(a) += b; }
    friend CString operator+(CString a, char16_t b)
    {
        a += b;
        return a;
    }

    friend bool operator==(const CString& a, const CString& b) { return a.m_rep == b.m_rep || a.Str() == b.Str(); }
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) { return a.Str() <=> b.Str(); }
    friend bool operator==(const CString& a, const char16_t* b) { return a.Str() == (b ? b : u""); }

private:
    struct Rep {
        std::int32_t refs;
        // The text is known to hold no control character; cleared whenever
        // it changes.
        mutable bool printable;
        std::u16string text;
    };
    // A CString is this one pointer, null or aligned: its lowest bit is free
    // for a container that keeps a string or something else in one word.
    static_assert(alignof(Rep) >= 2);

    static const std::u16string& EmptyText();
    // The text to change: this string's own buffer, copied first when shared.
    // Inline for the common case of a buffer of its own, as appends take it
    // once per piece.
    std::u16string& Mutable()
    {
        if (m_rep && m_rep->refs == 1) {
            m_rep->printable = false;
            return m_rep->text;
        }
        return Unshare();
    }
    std::u16string& Unshare();
    void Release() noexcept
    {
        if (m_rep && --m_rep->refs == 0)
            Free(m_rep);
        m_rep = nullptr;
    }
    // Out of line: the last owner frees the buffer.
    static void Free(Rep* rep) noexcept;

    Rep* m_rep = nullptr; // null: the empty string

    friend bool ContainsControlCharacter(const CString& text);
};

template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& s) const noexcept { return std::hash<std::u16string>{}(s.Str()); }
};

// True for code units below 0x20 and DEL, i.e. anything that could break a
// command line apart if written into it. A text found free of them is not
// read again while it stays unchanged.
bool ContainsControlCharacter(const CString& text);
