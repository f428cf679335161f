#include "private/Anova/KDGAnovaData.h"

#include "Source/DlgStat2.h"
#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"

IMPLEMENT_SERIAL(CAnovaData, CGUIBaseObj, 1)

CAnovaData::CAnovaData()
    : m_MissingValCheck(GetDefaultMissingValCheck()), m_PostHocTestCheck(GetDefaultPostHocTestCheck()),
      m_SaveFileCheck(GetDefaultSaveFileCheck()), m_PostHocTestCombo(GetDefaultPostHocTestCombo()),
      m_SaveFileCombo(GetDefaultSaveFileCombo()), m_SaveFileEdit(GetDefaultSaveFileEdit())
{
}

int CAnovaData::GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
                       CGUIArray<CGUIDataVariable>& factor, CGUIArray<CGUIDataVariable>& covariate,
                       int& missingValCheck, int& postHocTestCheck, int& saveFileCheck, int& postHocTestCombo,
                       int& saveFileCombo, CString& saveFileEdit) const
{
    if (&source != &m_SourceList)
        source = m_SourceList;
    if (&dependent != &m_DependentList)
        dependent = m_DependentList;
    if (&factor != &m_FactorList)
        factor = m_FactorList;
    if (&covariate != &m_CovariateList)
        covariate = m_CovariateList;
    missingValCheck = m_MissingValCheck;
    postHocTestCheck = m_PostHocTestCheck;
    saveFileCheck = m_SaveFileCheck;
    postHocTestCombo = m_PostHocTestCombo;
    saveFileCombo = m_SaveFileCombo;
    saveFileEdit = m_SaveFileEdit;
    return 1;
}

int CAnovaData::SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
                       const CGUIArray<CGUIDataVariable>& factor, const CGUIArray<CGUIDataVariable>& covariate,
                       int missingValCheck, int postHocTestCheck, int saveFileCheck, int postHocTestCombo,
                       int saveFileCombo, const CString& saveFileEdit)
{
    if (&source != &m_SourceList)
        m_SourceList = source;
    if (&dependent != &m_DependentList)
        m_DependentList = dependent;
    if (&factor != &m_FactorList)
        m_FactorList = factor;
    if (&covariate != &m_CovariateList)
        m_CovariateList = covariate;
    m_MissingValCheck = missingValCheck;
    m_PostHocTestCheck = postHocTestCheck;
    m_SaveFileCheck = saveFileCheck;
    m_PostHocTestCombo = postHocTestCombo;
    m_SaveFileCombo = saveFileCombo;
    m_SaveFileEdit = saveFileEdit;
    return 1;
}

void CAnovaData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleAnova, list);

    CString depend(u"DEPEND ");
    AddVariables(depend, m_DependentList, u" ");
    AppendCommandLine(list, depend);

    // "/ OFF" has no leading blank: the keyword's own blank separates it.
    const int factors = m_FactorList.GetSize();
    CString category(u"CATEGORY ");
    AddVariables(category, m_FactorList, u" ");
    category += AddOnConditionCmd(u"/ OFF", factors <= 0);
    category += AddOnConditionCmd(u" / REPLACE", factors > 0);
    category += AddOnConditionCmd(u" MISS", factors > 0 && m_MissingValCheck != 0);
    AppendCommandLine(list, category);

    CString covar(u"COVAR ");
    AddVariables(covar, m_CovariateList, u" ");
    AppendCommandLine(list, covar);

    if (m_SaveFileCheck) {
        const CString option =
            CComboUtil::GetComboString(kSaveCombo, m_SaveFileCombo, SaveListFor(m_DependentList.GetSize()));
        AddSaveCmd(m_SaveFileEdit, list, option, u"");
    }

    AppendCommandLine(list, u"ESTIMATE ");
}

void CAnovaData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    IGlobal* global = g_pDlgStat2Module ? g_pDlgStat2Module->GetGlobal() : nullptr;
    IDataSheet* sheet = global ? global->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    const std::vector<int> marked = sheet->GetCategoricalIndexes();
    if (marked.empty())
        return;
    CGUIArray<CGUIDataVariable> categorical;
    for (const int index : marked) {
        CGUIDataVariable variable;
        variable.SetVariableName(sheet->GetVariableName(index, 1));
        categorical.Add(variable);
    }
    UpdateCtrlList(&m_FactorList, &categorical, 1);
}

void CAnovaData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    if (ar.IsStoring()) {
        ar << m_MissingValCheck << m_PostHocTestCheck << m_SaveFileCheck << m_PostHocTestCombo << m_SaveFileCombo
           << m_SaveFileEdit;
    } else {
        ar >> m_MissingValCheck >> m_PostHocTestCheck >> m_SaveFileCheck >> m_PostHocTestCombo >> m_SaveFileCombo >>
            m_SaveFileEdit;
    }
    m_SourceList.Serialize(ar);
    m_DependentList.Serialize(ar);
    m_FactorList.Serialize(ar);
    m_CovariateList.Serialize(ar);
}
