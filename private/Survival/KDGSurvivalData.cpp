#include "private/Survival/KDGSurvivalData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "host/IGlobal.h"

IMPLEMENT_SERIAL(CSurvivalData, CGUIBaseObj, 1)

void CSurvivalData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleSurvival, list);

    CString line(u"MODEL ");
    AddVariables(line, m_TimeList, u" ");
    if (m_Kind == SurvivalKind::Regression && !m_CovariateList.IsEmpty()) {
        line += u" = ";
        AddVariables(line, m_CovariateList, u"+");
    }
    line += u" /";
    if (!m_CensorList.IsEmpty()) {
        line += u" CENSOR = ";
        AddVariables(line, m_CensorList, u" ");
        line += u"(" + NumberText(m_CodeEdit.m_Value) + u")";
    }
    if (!m_EntryList.IsEmpty()) {
        line += u" ENTRY = ";
        AddVariables(line, m_EntryList, u" ");
    }
    if (!m_StrataList.IsEmpty()) {
        line += u" STRATA = ";
        AddVariables(line, m_StrataList, u" ");
    }
    CStringUtil::RemoveTrailingChar(line, u'/');
    AppendCommandLine(list, line);

    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");
}

void CSurvivalData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    for (CGUIArray<CGUIDataVariable>* role :
         {&m_TimeList, &m_CensorList, &m_EntryList, &m_StrataList, &m_CovariateList})
        UpdateCtrlList(role, &all, 0);
}

void CSurvivalData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SaveCheck, m_SaveCombo, m_SaveEdit, m_SourceList, m_TimeList, m_CensorList, m_EntryList,
                         m_StrataList, m_CovariateList, m_CodeEdit);
}
