#include "private/Anova/KDGModelTerms.h"

#include "framework/GUIBaseObj.h"
#include "platform/TextIndex.h"

#include <cstdint>

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
    // One flat index over the terms and the candidates together, which
    // copies no text and allocates no node per entry: with 100,000 terms a
    // set of strings spent most of its time waiting for memory. Each text
    // is hashed once, and read again only where two hashes agree.
    const int existing = terms.GetSize();
    const int count = existing + static_cast<int>(added.size());
    const auto textOf = [&terms, &added, existing](int i) -> std::u16string_view {
        return i < existing ? terms[i].Str() : added[static_cast<std::size_t>(i - existing)].Str();
    };
    std::vector<std::uint32_t> hashes(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        hashes[static_cast<std::size_t>(i)] = CTextIndex::Hash(textOf(i));
    CTextIndex index;
    index.Build(count, textOf, [&hashes](int i) { return hashes[static_cast<std::size_t>(i)]; });
    for (int item = existing; item < count; ++item) {
        // The index holds the first item of each text: a candidate is new
        // when the index holds it itself.
        const std::u16string_view text = textOf(item);
        const int first =
            index.FindIf(hashes[static_cast<std::size_t>(item)], [&](int i) { return i == item || textOf(i) == text; });
        if (!text.empty() && first == item)
            terms.Add(added[static_cast<std::size_t>(item - existing)]);
    }
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
