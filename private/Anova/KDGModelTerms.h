// CModelTerms: the terms of a linear model as the "MODEL" line writes them.
// A main effect is a variable name, an interaction names joined by "*", a
// polynomial term its variable repeated ("X*X"), a nested term a term
// followed by the variables it is nested in ("B(A)", "C(A B)"). Names are
// quoted as on every line, so a term is ready to be joined with "+".
//
// The term builders of the model pages and the hypothesis pages that list
// a model's terms share these rules; each works in time linear in what it
// is given (the full factorial is bounded by its variable limit).
#pragma once

#include "framework/GUIArray.h"
#include "platform/CString.h"

#include <functional>
#include <unordered_set>
#include <vector>

class CModelTerms {
public:
    // The most variables a full factorial crosses (2^10 - 1 terms).
    static constexpr int kMaxFactorialVariables = 10;

    // Each returns an empty text when a name holds a control character:
    // such a name could start a line of its own and is never written.
    static CString MainEffect(const CString& name);
    static CString Interaction(const std::vector<CString>& names);
    static CString Power(const CString& name, int degree);
    // `term` nested within `within`; a nested term takes the new variables
    // into its parentheses.
    static CString Nested(const CString& term, const std::vector<CString>& within);
    // Every main effect and interaction of `names`, by order, each order in
    // the names' order: A, B, C, A*B, A*C, B*C, A*B*C. Empty for fewer than
    // two names or more than kMaxFactorialVariables.
    static std::vector<CString> FullFactorial(const std::vector<CString>& names);

    // Appends the terms of `added` that `terms` lacks, in their order.
    static void AddUnique(CGUIArray<CString>& terms, const std::vector<CString>& added);
    // Which of `candidates` the terms use: a set of the candidates only, so
    // that a few factors among many terms stay cheap to find.
    static std::unordered_set<CString> UsedAmong(const CGUIArray<CString>& terms,
                                                 const std::vector<CString>& candidates);
    // The first term naming a variable that `isKnown` denies, or -1.
    static int FindUnknownVariable(const CGUIArray<CString>& terms, const std::function<bool(const CString&)>& isKnown);
};
