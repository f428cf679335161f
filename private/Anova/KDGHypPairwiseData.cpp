#include "private/Anova/KDGHypPairwiseData.h"

#include "private/Anova/KDGLastModel.h"

#include <algorithm>

IMPLEMENT_SERIAL(CHypPairwiseData, CGUIBaseObj, 1)

CMatrixText::Rows CHypPairwiseData::PairwiseRows(int levels)
{
    CMatrixText::Rows rows;
    const auto k = static_cast<std::size_t>(std::clamp(levels, 0, kMaxLevels));
    for (std::size_t i = 0; i < k; ++i)
        for (std::size_t j = i + 1; j < k; ++j) {
            std::vector<CString> row(k, CString(u"0"));
            row[i] = u"1";
            row[j] = u"-1";
            rows.push_back(std::move(row));
        }
    return rows;
}

void CHypPairwiseData::FollowModel(const CLastModel& model)
{
    const std::vector<CString>& factors = model.GetFactors();
    if (std::find(factors.begin(), factors.end(), m_Factor) == factors.end())
        m_Factor = factors.empty() ? CString() : factors.front();
    const CGUIArray<CString>& terms = model.GetTerms();
    if (std::find(terms.begin(), terms.end(), m_ErrorTerm) == terms.end())
        m_ErrorTerm.Empty();
}

void CHypPairwiseData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(CLastModel::ModuleId(GetDialogID()), list);
    AppendCommandLine(list, u"HYPOTHESIS");
    if (!ContainsControlCharacter(m_Factor))
        AppendCommandLine(list, u"EFFECT = " + QuoteName(m_Factor));
    AddStringCmd(CMatrixText::Format(PairwiseRows(m_LevelsEdit.m_Value)), list, u"CONTRAST [ ", u" ]", 1);
    if (!m_ErrorTerm.IsEmpty() && !ContainsControlCharacter(m_ErrorTerm)) {
        CString term = m_ErrorTerm;
        term.Replace(u"'", u"''");
        AddStringCmd(term, list, u"ERROR '", u"'", 1);
    }
    AppendCommandLine(list, u"TEST");
}

void CHypPairwiseData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_Factor, m_ErrorTerm, m_LevelsEdit);
}
