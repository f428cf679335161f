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

// The names `term` uses, into `names`: a plain name is its own, any other
// term is read as an expression.
void NamesOf(const CString& term, CStringArray& names)
{
    if (CGUIBaseObj::IsPlainIdentifier(term)) {
        names.RemoveAll();
        names.Add(term);
    } else {
        CGUIBaseObj::GetUniqueArrFromExpn(term, names);
    }
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
    std::unordered_set<CString> present;
    present.reserve(static_cast<std::size_t>(terms.GetSize()) + added.size());
    present.insert(terms.begin(), terms.end());
    for (const CString& term : added)
        if (!term.IsEmpty() && present.insert(term).second)
            terms.Add(term);
}

std::unordered_set<CString> CModelTerms::UsedAmong(const CGUIArray<CString>& terms,
                                                   const std::vector<CString>& candidates)
{
    const std::unordered_set<CString> wanted(candidates.begin(), candidates.end());
    std::unordered_set<CString> used;
    CStringArray found;
    for (const CString& term : terms) {
        if (used.size() == wanted.size())
            break;
        NamesOf(term, found);
        for (const CString& name : found)
            if (wanted.count(name))
                used.insert(name);
    }
    return used;
}

int CModelTerms::FindUnknownVariable(const CGUIArray<CString>& terms,
                                     const std::function<bool(const CString&)>& isKnown)
{
    CStringArray found;
    for (int i = 0; i < terms.GetSize(); ++i) {
        NamesOf(terms[i], found);
        for (const CString& name : found)
            if (!isKnown(name))
                return i;
    }
    return -1;
}
