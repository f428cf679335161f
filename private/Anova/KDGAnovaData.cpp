#include "private/Anova/KDGAnovaData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"

IMPLEMENT_SERIAL(CAnovaData, CGUIBaseObj, 1)

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
    UpdateCtrlList(&m_SourceList, std::move(all), 1);

    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
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
    // The flags and indexes, the file name, then the lists: not member order.
    kal::SerializeValues(ar, m_MissingValCheck, m_PostHocTestCheck, m_SaveFileCheck, m_PostHocTestCombo,
                         m_SaveFileCombo, m_SaveFileEdit, m_SourceList, m_DependentList, m_FactorList, m_CovariateList);
}
