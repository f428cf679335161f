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

    AppendCommandLine(list, CategoryLine(*this, m_FactorList, m_MissingValCheck));

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

    const CGUIArray<CGUIDataVariable> categorical = SheetCategoricalVariables();
    if (!categorical.IsEmpty())
        UpdateCtrlList(&m_FactorList, &categorical, 1);
}

CString CAnovaData::CategoryLine(const CGUIBaseObj& writer, const CGUIArray<CGUIDataVariable>& factors, int missing)
{
    // "/ OFF" has no leading blank: the keyword's own blank separates it.
    const int count = factors.GetSize();
    CString category(u"CATEGORY ");
    writer.AddVariables(category, factors, u" ");
    category += writer.AddOnConditionCmd(u"/ OFF", count <= 0);
    category += writer.AddOnConditionCmd(u" / REPLACE", count > 0);
    category += writer.AddOnConditionCmd(u" MISS", count > 0 && missing != 0);
    return category;
}

CGUIArray<CGUIDataVariable> CAnovaData::SheetCategoricalVariables()
{
    CGUIArray<CGUIDataVariable> categorical;
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return categorical;
    for (const int index : sheet->GetCategoricalIndexes()) {
        CGUIDataVariable variable;
        variable.SetVariableName(sheet->GetVariableName(index, 1));
        categorical.Add(variable);
    }
    return categorical;
}

void CAnovaData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The flags and indexes, the file name, then the lists: not member order.
    kal::SerializeValues(ar, m_MissingValCheck, m_PostHocTestCheck, m_SaveFileCheck, m_PostHocTestCombo,
                         m_SaveFileCombo, m_SaveFileEdit, m_SourceList, m_DependentList, m_FactorList, m_CovariateList);
}
