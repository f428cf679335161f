#include "private/Regression/KDGTslsInstrumentsData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "host/IGlobal.h"

#include <string_view>
#include <unordered_set>

IMPLEMENT_SERIAL(CTslsInstrumentsData, CGUIBaseObj, 1)

void CTslsInstrumentsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString endogenous(u"ENDOGENOUS ");
    AddVariables(endogenous, m_EndogenousList, u" ");
    AppendCommandLine(list, endogenous);
    CString instruments(u"INSTRUMENTS ");
    AddVariables(instruments, m_InstrumentList, u" ");
    AppendCommandLine(list, instruments);

    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"RESIDUALS", u"");
    AppendCommandLine(list, u"ESTIMATE /" + AddOnConditionCmd(u" FIRST", m_FirstStageCheck));
}

void CTslsInstrumentsData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    // Variables the open data sheet no longer has leave the lists too.
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    std::unordered_set<std::u16string_view> names;
    for (const auto& variable : all)
        names.insert(variable.GetVariableName().Str());
    for (CGUIArray<CGUIDataVariable>* list : {&m_EndogenousList, &m_InstrumentList}) {
        CGUIArray<CGUIDataVariable> kept;
        for (const auto& variable : *list)
            if (names.count(variable.GetVariableName().Str()))
                kept.Add(variable);
        *list = std::move(kept);
    }
}

void CTslsInstrumentsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_EndogenousList, m_InstrumentList, m_FirstStageCheck, m_SaveCheck,
                         m_SaveEdit);
}
