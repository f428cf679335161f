#include "private/Missing/KDGMissingData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"
#include "private/Missing/KDGMissingTabData.h"

IMPLEMENT_SERIAL(CMissingData, CGUIBaseObj, 1)

void CMissingData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // The estimation page, when this page sits in the analysis's tab,
    // decides which engine runs; alone, the deletion methods' module.
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    auto* tab = dynamic_cast<CMissingTabData*>(parent);
    AddModuleCmd(tab ? tab->GetEstimateData()->ModuleId() : CMissingEstimateData::kModuleDeletion, list);

    CString model(u"MODEL ");
    AddVariables(model, m_VariableList, u" ");
    AppendCommandLine(list, model);

    if (!m_GroupList.IsEmpty()) {
        CString group(u"GROUP ");
        AddVariables(group, m_GroupList, u" ");
        AppendCommandLine(list, group);
    }

    if (m_PatternCheck)
        AppendCommandLine(list,
                          u"PATTERN" + AddEditValueCmd(m_CutoffEdit, u" / CUTOFF = ", IsToBeWritten(m_CutoffEdit)));

    if (m_SaveCheck) {
        const bool withData = CComboUtil::GetComboItem(kSaveCombo, m_SaveCombo, 0) == kItemWithData;
        AddSaveCmd(m_SaveEdit, list, withData ? CString(u"DATA") : CString(), u"");
    }
}

void CMissingData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    UpdateCtrlList(&m_VariableList, &all, 0);
    UpdateCtrlList(&m_GroupList, &all, 0);
}

void CMissingData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_PatternCheck, m_SaveCheck, m_SaveCombo, m_SaveEdit, m_SourceList, m_VariableList,
                         m_GroupList, m_CutoffEdit);
}
