#include "private/Anova/KDGPairwiseData.h"

#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"
#include "private/Anova/KDGLastModel.h"

#include <algorithm>

IMPLEMENT_SERIAL(CPairwiseData, CGUIBaseObj, 1)

namespace {

// A term as the "ERROR" line quotes it: inner quotes doubled.
CString QuotedTerm(const CString& term)
{
    CString quoted = term;
    quoted.Replace(u"'", u"''");
    return quoted;
}

} // namespace

void CPairwiseData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(CLastModel::ModuleId(GetTestCommand()), list);
    AppendCommandLine(list, u"HYPOTHESIS");

    CString post(u"POST ");
    if (!ContainsControlCharacter(m_Factor))
        post += QuoteName(m_Factor);
    post += u" /";
    switch (CRadioUtil::GetRadioItem(kMethodRadio, m_MethodRadio)) {
    case CPairwiseDlgIds::IDC_LSD: post += u" LSD"; break;
    case CPairwiseDlgIds::IDC_BONFERRONI: post += u" BONF"; break;
    case CPairwiseDlgIds::IDC_SIDAK: post += u" SIDAK"; break;
    case CPairwiseDlgIds::IDC_TUKEY: post += u" TUKEY"; break;
    case CPairwiseDlgIds::IDC_SCHEFFE: post += u" SCHEFFE"; break;
    default: CKalAssertDlg("Source/KDGPairwiseData", __LINE__).DoPrint(); break;
    }
    post += AddChangedValueCmd(u" CONFI = ", m_Confidence);
    post += AddOnConditionCmd(u" MATRIX",
                              CRadioUtil::GetRadioItem(kOutputRadio, m_OutputRadio) == CPairwiseDlgIds::IDC_MATRIX);
    if (!m_DependentList.IsEmpty()) {
        post += u" DEPEND = ";
        AddVariables(post, m_DependentList, u" ");
    }
    AppendCommandLine(list, post);

    if (!m_ErrorTerm.IsEmpty() && !ContainsControlCharacter(m_ErrorTerm))
        AddStringCmd(QuotedTerm(m_ErrorTerm), list, u"ERROR '", u"'", 1);
    AppendCommandLine(list, u"TEST");
}

UINT CPairwiseData::GetTestCommand() const
{
    return CLastModel::TestCommandOf(*this);
}

void CPairwiseData::FollowModel(const CLastModel& model)
{
    m_SourceList = model.GetDependents();
    UpdateCtrlList(&m_DependentList, &m_SourceList, 0);
    const std::vector<CString>& factors = model.GetFactors();
    if (std::find(factors.begin(), factors.end(), m_Factor) == factors.end())
        m_Factor = factors.empty() ? CString() : factors.front();
    const CGUIArray<CString>& terms = model.GetTerms();
    if (std::find(terms.begin(), terms.end(), m_ErrorTerm) == terms.end())
        m_ErrorTerm.Empty();
}

void CPairwiseData::FillListSource()
{
    // Before its first opening the command is not known yet: the page
    // follows the model when it opens.
    if (const UINT command = GetTestCommand())
        FollowModel(CLastModel::For(command));
}

void CPairwiseData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_MethodRadio, m_OutputRadio, m_Factor, m_ErrorTerm, m_SourceList, m_DependentList,
                         m_Confidence);
}
