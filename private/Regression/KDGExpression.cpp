#include "private/Regression/KDGExpression.h"

#include "framework/GUIBaseObj.h"
#include "framework/HostLink.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

namespace {

constexpr std::array<std::u16string_view, 20> kFunctions = {
    u"EXP",  u"LOG",  u"LN",   u"LOG10", u"SQRT", u"ABS", u"SIN", u"COS", u"TAN",  u"ASIN",
    u"ACOS", u"ATAN", u"SINH", u"COSH",  u"TANH", u"MIN", u"MAX", u"INT", u"SIGN", u"NCF",
};

bool IsDigit(char16_t ch)
{
    return ch >= u'0' && ch <= u'9';
}

bool IsNameStart(char16_t ch)
{
    return (ch >= u'A' && ch <= u'Z') || (ch >= u'a' && ch <= u'z') || ch == u'_' || ch >= 0x80;
}

bool IsNamePart(char16_t ch)
{
    return IsNameStart(ch) || IsDigit(ch) || ch == u'.';
}

CString Upper(const CString& text)
{
    CString upper = text;
    upper.MakeUpper();
    return upper;
}

bool Contains(const std::vector<CString>& names, const CString& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

enum class Token { Number, Name, Operator, Open, Close, Comma, End, Bad };

// Reads the expression one token at a time; a quoted name comes back
// without its quotes.
class CTokenizer {
public:
    explicit CTokenizer(const std::u16string& text) : m_text(text) { Next(); }

    Token Kind() const { return m_kind; }
    const CString& Text() const { return m_lexeme; }
    char16_t Operator() const { return m_operator; }

    void Next()
    {
        while (m_at < m_text.size() && m_text[m_at] == u' ')
            ++m_at;
        m_lexeme.Empty();
        if (m_at >= m_text.size()) {
            m_kind = Token::End;
            return;
        }
        const char16_t ch = m_text[m_at];
        if (IsDigit(ch) || (ch == u'.' && m_at + 1 < m_text.size() && IsDigit(m_text[m_at + 1])))
            ReadNumber();
        else if (IsNameStart(ch))
            ReadName();
        else if (ch == u'\'')
            ReadQuotedName();
        else
            ReadSymbol(ch);
    }

private:
    void ReadNumber()
    {
        const auto digits = [this] {
            while (m_at < m_text.size() && IsDigit(m_text[m_at]))
                ++m_at;
        };
        digits();
        if (m_at < m_text.size() && m_text[m_at] == u'.') {
            ++m_at;
            digits();
        }
        if (m_at < m_text.size() && (m_text[m_at] == u'e' || m_text[m_at] == u'E')) {
            std::size_t at = m_at + 1;
            if (at < m_text.size() && (m_text[at] == u'+' || m_text[at] == u'-'))
                ++at;
            if (at >= m_text.size() || !IsDigit(m_text[at])) {
                m_kind = Token::Bad;
                return;
            }
            m_at = at;
            digits();
        }
        // "2X" or "1.5.2" is no number followed by something else.
        m_kind =
            m_at < m_text.size() && (IsNamePart(m_text[m_at]) || m_text[m_at] == u'\'') ? Token::Bad : Token::Number;
    }

    void ReadName()
    {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && IsNamePart(m_text[m_at]))
            ++m_at;
        if (m_at < m_text.size() && m_text[m_at] == u'$')
            ++m_at;
        m_lexeme = CString(m_text.substr(start, m_at - start));
        m_kind = Token::Name;
    }

    void ReadQuotedName()
    {
        ++m_at;
        std::u16string name;
        while (m_at < m_text.size()) {
            if (m_text[m_at] == u'\'') {
                if (m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\'') {
                    name += u'\'';
                    m_at += 2;
                    continue;
                }
                ++m_at;
                m_lexeme = CString(name);
                m_kind = name.empty() ? Token::Bad : Token::Name;
                return;
            }
            name += m_text[m_at++];
        }
        m_kind = Token::Bad; // no closing quote
    }

    void ReadSymbol(char16_t ch)
    {
        ++m_at;
        switch (ch) {
        case u'+':
        case u'-':
        case u'*':
        case u'/':
        case u'^':
            m_kind = Token::Operator;
            m_operator = ch;
            break;
        case u'(': m_kind = Token::Open; break;
        case u')': m_kind = Token::Close; break;
        case u',': m_kind = Token::Comma; break;
        default: m_kind = Token::Bad; break;
        }
    }

    const std::u16string& m_text;
    std::size_t m_at = 0;
    Token m_kind = Token::End;
    CString m_lexeme;
    char16_t m_operator = 0;
};

// expression := term (("+" | "-") term)*
// term       := factor (("*" | "/") factor)*
// factor     := unary ("^" factor)?
// unary      := ("+" | "-") unary | primary
// primary    := number | name | function "(" expression ("," expression)* ")" | "(" expression ")"
class CParser {
public:
    using Known = std::function<bool(const CString&)>;

    CParser(const std::u16string& text, CExpressionCheck::Result& result, Known known)
        : m_tokens(text), m_result(result), m_known(std::move(known))
    {
    }

    void Run()
    {
        if (Expression() && m_tokens.Kind() != Token::End)
            Fail(CExpressionCheck::Problem::Syntax);
    }

private:
    bool IsOperator(std::u16string_view which) const
    {
        return m_tokens.Kind() == Token::Operator && which.find(m_tokens.Operator()) != std::u16string_view::npos;
    }

    bool Expression()
    {
        if (!Term())
            return false;
        while (IsOperator(u"+-")) {
            m_tokens.Next();
            if (!Term())
                return false;
        }
        return true;
    }

    bool Term()
    {
        if (!Factor())
            return false;
        while (IsOperator(u"*/")) {
            m_tokens.Next();
            if (!Factor())
                return false;
        }
        return true;
    }

    bool Factor()
    {
        if (!Unary())
            return false;
        if (IsOperator(u"^")) {
            m_tokens.Next();
            return Factor();
        }
        return true;
    }

    bool Unary()
    {
        if (IsOperator(u"+-")) {
            m_tokens.Next();
            return Unary();
        }
        return Primary();
    }

    bool Primary()
    {
        switch (m_tokens.Kind()) {
        case Token::Number: m_tokens.Next(); return true;
        case Token::Open:
            m_tokens.Next();
            if (!Expression())
                return false;
            return Expect(Token::Close);
        case Token::Name: return NameOrCall();
        default: return Fail(CExpressionCheck::Problem::Syntax);
        }
    }

    bool NameOrCall()
    {
        const CString name = m_tokens.Text();
        m_tokens.Next();
        if (m_tokens.Kind() != Token::Open) {
            if (!m_known(name)) {
                m_result.name = name;
                return Fail(CExpressionCheck::Problem::UnknownName);
            }
            if (!Contains(m_result.names, name))
                m_result.names.push_back(name);
            return true;
        }
        if (!CExpressionCheck::IsFunction(name)) {
            m_result.name = name;
            return Fail(CExpressionCheck::Problem::UnknownName);
        }
        m_tokens.Next();
        if (!Expression())
            return false;
        while (m_tokens.Kind() == Token::Comma) {
            m_tokens.Next();
            if (!Expression())
                return false;
        }
        return Expect(Token::Close);
    }

    bool Expect(Token kind)
    {
        if (m_tokens.Kind() != kind)
            return Fail(CExpressionCheck::Problem::Syntax);
        m_tokens.Next();
        return true;
    }

    bool Fail(CExpressionCheck::Problem problem)
    {
        if (m_result.problem == CExpressionCheck::Problem::None)
            m_result.problem = problem;
        return false;
    }

    CTokenizer m_tokens;
    CExpressionCheck::Result& m_result;
    Known m_known;
};

bool Balanced(const std::u16string& text)
{
    int depth = 0;
    bool quoted = false;
    for (const char16_t ch : text) {
        if (ch == u'\'')
            quoted = !quoted;
        else if (!quoted && ch == u'(')
            ++depth;
        else if (!quoted && ch == u')' && --depth < 0)
            return false;
    }
    return depth == 0;
}

} // namespace

CExpressionCheck::CExpressionCheck(std::vector<CString> variables, std::vector<CString> parameters,
                                   std::vector<CString> extra)
    : m_Variables(std::move(variables)), m_Parameters(std::move(parameters)), m_Extra(std::move(extra))
{
}

bool CExpressionCheck::IsFunction(const CString& name)
{
    const CString upper = Upper(name);
    return std::find(kFunctions.begin(), kFunctions.end(), std::u16string_view(upper.Str())) != kFunctions.end();
}

bool CExpressionCheck::IsParameterName(const CString& name)
{
    return CGUIBaseObj::IsPlainIdentifier(name) && !IsFunction(name);
}

bool CExpressionCheck::IsParameter(const CString& name) const
{
    return Contains(m_Parameters, name);
}

bool CExpressionCheck::IsKnown(const CString& name) const
{
    if (Contains(m_Variables, name) || IsParameter(name))
        return true;
    const CString upper = Upper(name);
    return std::any_of(m_Extra.begin(), m_Extra.end(), [&](const CString& extra) { return Upper(extra) == upper; });
}

CExpressionCheck::Result CExpressionCheck::Check(const CString& text, bool needsParameter) const
{
    Result result;
    // Control characters first: trimming would take a line end away.
    if (ContainsControlCharacter(text)) {
        result.problem = Problem::ControlCharacter;
        return result;
    }
    CString trimmed = text;
    trimmed.Trim();
    if (trimmed.IsEmpty()) {
        result.problem = Problem::Empty;
        return result;
    }
    if (!Balanced(trimmed.Str())) {
        result.problem = Problem::Unbalanced;
        return result;
    }
    CParser(trimmed.Str(), result, [this](const CString& name) { return IsKnown(name); }).Run();
    if (result.problem == Problem::None && needsParameter &&
        std::none_of(result.names.begin(), result.names.end(), [this](const CString& n) { return IsParameter(n); }))
        result.problem = Problem::NoParameter;
    return result;
}

bool ReadTypedNumber(const CString& text, double& value)
{
    if (!CGUIBaseObj::IsNumeric(text))
        return false;
    CString plain = text;
    plain.Trim();
    plain.Replace(CString(kal::framework::DecimalSeparator()), u".");
    const std::string utf8 = plain.ToUtf8();
    char* end = nullptr;
    value = std::strtod(utf8.c_str(), &end);
    return end && *end == '\0' && value - value == 0; // finite
}

CValueList::Result CValueList::Parse(const CString& text, const std::vector<CString>& known)
{
    Result result;
    if (ContainsControlCharacter(text)) {
        result.problem = Problem::ControlCharacter;
        return result;
    }
    const bool commaSeparates = kal::framework::DecimalSeparator() != u',';
    std::vector<CString> entries(1);
    bool quoted = false;
    for (const char16_t ch : text.Str()) {
        if (ch == u'\'')
            quoted = !quoted;
        if (!quoted && (ch == u';' || (commaSeparates && ch == u',')))
            entries.emplace_back();
        else
            entries.back() += ch;
    }
    if (entries.size() == 1 && CString(entries.front()).Trim().IsEmpty())
        return result; // no values at all
    for (CString& entry : entries) {
        // The first "=" outside quotes ends the name.
        int equals = -1;
        bool inQuotes = false;
        for (int i = 0; i < entry.GetLength() && equals < 0; ++i) {
            if (entry[i] == u'\'')
                inQuotes = !inQuotes;
            else if (entry[i] == u'=' && !inQuotes)
                equals = i;
        }
        if (equals < 0) {
            result.problem = Problem::Syntax;
            return result;
        }
        CString name = entry.Left(equals);
        name.Trim();
        if (name.GetLength() >= 2 && name[0] == u'\'' && name[name.GetLength() - 1] == u'\'') {
            name = name.Mid(1, name.GetLength() - 2);
            name.Replace(u"''", u"'");
        }
        result.name = name;
        if (name.IsEmpty()) {
            result.problem = Problem::Syntax;
            return result;
        }
        if (!Contains(known, name)) {
            result.problem = Problem::UnknownName;
            return result;
        }
        if (std::any_of(result.values.begin(), result.values.end(), [&](const auto& v) { return v.first == name; })) {
            result.problem = Problem::Repeated;
            return result;
        }
        double value = 0;
        if (!ReadTypedNumber(entry.Mid(equals + 1), value)) {
            result.problem = Problem::NotANumber;
            return result;
        }
        result.values.emplace_back(name, value);
    }
    result.name.Empty();
    return result;
}

CString CValueList::Format(const std::vector<std::pair<CString, double>>& values)
{
    CString text;
    for (const auto& [name, value] : values) {
        if (!text.IsEmpty())
            text += CGUIBaseObj::LimitsSeparator() + u" ";
        text += CGUIBaseObj::QuoteName(name) + u" = " + CGUIBaseObj::NumberText(value);
    }
    return text;
}
