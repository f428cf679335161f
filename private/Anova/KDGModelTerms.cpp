#include "private/Anova/KDGModelTerms.h"

#include "framework/GUIBaseObj.h"

namespace {

CString Joined(const std::vector<CString>& names, const CString& separator)
{
    CString text;
    for (const CString& name : names) {
        if (ContainsControlCharacter(name))
            return {};
        if (!text.IsEmpty())
            text += separator;
        text += CGUIBaseObj::QuoteName(name);
    }
    return text;
}

} // namespace

CString CModelTerms::MainEffect(const CString& name)
{
    return Joined({name}, {});
}

CString CModelTerms::Interaction(const std::vector<CString>& names)
{
    return Joined(names, u"*");
}

CString CModelTerms::Power(const CString& name, int degree)
{
    return Joined(std::vector<CString>(static_cast<std::size_t>(degree > 1 ? degree : 1), name), u"*");
}

CString CModelTerms::Nested(const CString& term, const std::vector<CString>& within)
{
    const CString inner = Joined(within, u" ");
    if (term.IsEmpty() || inner.IsEmpty())
        return {};
    if (term.Right(1) == u")")
        return term.Left(term.GetLength() - 1) + u" " + inner + u")";
    return term + u"(" + inner + u")";
}

std::vector<CString> CModelTerms::FullFactorial(const std::vector<CString>& names)
{
    const int n = static_cast<int>(names.size());
    if (n < 2 || n > kMaxFactorialVariables)
        return {};
    std::vector<CString> terms;
    std::vector<CString> chosen;
    // The combinations of `order` names in the names' order, from `first` on.
    const auto combine = [&](const auto& self, int order, int first) -> void {
        if (static_cast<int>(chosen.size()) == order) {
            terms.push_back(Interaction(chosen));
            return;
        }
        for (int i = first; i < n; ++i) {
            chosen.push_back(names[static_cast<std::size_t>(i)]);
            self(self, order, i + 1);
            chosen.pop_back();
        }
    };
    for (int order = 1; order <= n; ++order)
        combine(combine, order, 0);
    return terms;
}

void CModelTerms::AddUnique(CGUIArray<CString>& terms, const std::vector<CString>& added)
{
    std::unordered_set<CString> present(terms.begin(), terms.end());
    for (const CString& term : added)
        if (!term.IsEmpty() && present.insert(term).second)
            terms.Add(term);
}

std::unordered_set<CString> CModelTerms::VariablesOf(const CGUIArray<CString>& terms)
{
    std::unordered_set<CString> names;
    CStringArray found;
    for (const CString& term : terms) {
        CGUIBaseObj::GetUniqueArrFromExpn(term, found);
        names.insert(found.begin(), found.end());
    }
    return names;
}

int CModelTerms::FindUnknownVariable(const CGUIArray<CString>& terms, const std::unordered_set<CString>& known)
{
    CStringArray found;
    for (int i = 0; i < terms.GetSize(); ++i) {
        CGUIBaseObj::GetUniqueArrFromExpn(terms[i], found);
        for (const CString& name : found)
            if (!known.count(name))
                return i;
    }
    return -1;
}
