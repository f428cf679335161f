// CExpressionCheck: the check of a typed model or loss expression before it
// goes into a command line, and the lists of values typed as
// "NAME = number" that the logistic follow-ups take.
//
// An expression is arithmetic over numbers, names and function calls:
//   A*EXP(-B*X) + C/(1 + 'dose (mg)'^2)
// with + - * / ^, unary signs, parentheses, and a function name (EXP, LOG,
// SQRT, ...) directly before its parenthesised arguments, separated by
// commas. Numbers take "." as their decimal point whatever the host's
// separator, so that an expression reads the same everywhere. A name is a
// variable of the data sheet, a parameter of the model, or one of the extra
// names the caller allows; a name that is not a plain identifier is written
// in single quotes with inner quotes doubled, as on every other line.
//
// The check answers the first problem found: an empty text, a control
// character (a line end could start a command of its own), parentheses
// that do not pair, a text that does not read as an expression, a name the
// check does not know, or, where asked, an expression that uses no
// parameter at all.
#pragma once

#include "platform/CString.h"

#include <utility>
#include <vector>

class CExpressionCheck {
public:
    enum class Problem {
        None,
        Empty,
        ControlCharacter,
        Unbalanced,
        Syntax,
        UnknownName,
        NoParameter,
    };
    struct Result {
        Problem problem = Problem::None;
        // The name an UnknownName result is about.
        CString name;
        // The names the expression uses, each once, in order of first use.
        std::vector<CString> names;
    };

    CExpressionCheck(std::vector<CString> variables, std::vector<CString> parameters, std::vector<CString> extra = {});

    // Checks `text`; with `needsParameter` an expression without any
    // parameter is refused too.
    Result Check(const CString& text, bool needsParameter) const;

    // Whether `name` is a function an expression may call (any case).
    static bool IsFunction(const CString& name);
    // Whether `name` may name a parameter: a plain identifier that is no
    // function.
    static bool IsParameterName(const CString& name);

private:
    bool IsKnown(const CString& name) const;
    bool IsParameter(const CString& name) const;

    std::vector<CString> m_Variables;
    std::vector<CString> m_Parameters;
    std::vector<CString> m_Extra;
};

// A list of values typed as "X = 20, X2 = 5.5": names of a given set, each
// at most once, each with a number. Entries are separated by ";" or, while
// the decimal separator is ".", by ",".
class CValueList {
public:
    enum class Problem { None, Syntax, UnknownName, Repeated, NotANumber, ControlCharacter };
    struct Result {
        Problem problem = Problem::None;
        CString name;
        std::vector<std::pair<CString, double>> values;
    };

    static Result Parse(const CString& text, const std::vector<CString>& known);
    // The values as command text: "X = 20, X2 = 5.5" (names quoted unless
    // plain, numbers with the host's separator, entries joined by ", ", or
    // "; " where the comma is the decimal separator).
    static CString Format(const std::vector<std::pair<CString, double>>& values);
};

// A number typed with "." or the host's decimal separator, as the numeric
// edits read it; false for anything else.
bool ReadTypedNumber(const CString& text, double& value);
