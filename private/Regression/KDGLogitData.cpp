#include "private/Regression/KDGLogitData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "host/IGlobal.h"

IMPLEMENT_SERIAL(CLogitData, CGUIBaseObj, 1)

int CLogitData::GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
                       CGUIArray<CGUIDataVariable>& independent, CGUIArray<CGUIDataVariable>& conditional,
                       int& constantCheck, int& saveFileCheck, int& constantCheckEnable, int& saveFileCheckEnable,
                       CString& saveFile, int& saveCombo, CGUIData<double>& confidence, int& confiState,
                       int& setsPresent)
{
    const int callers = saveCombo;
    kal::CopyFieldsOut(*this, source, dependent, independent, conditional, constantCheck, saveFileCheck,
                       constantCheckEnable, saveFileCheckEnable, saveFile, saveCombo, confidence, confiState,
                       setsPresent);
    saveCombo = callers;
    m_SaveCombo = callers;
    return 1;
}

void CLogitData::SetControlStates(int constantCheckEnable, int saveFileCheckEnable, int confiState)
{
    m_ConstantCheckEnable = constantCheckEnable;
    m_SaveFileCheckEnable = saveFileCheckEnable;
    m_ConfiState = confiState;
}

int CLogitData::GetCondforCatnString(CString name) const
{
    return CheckStringPresentinListCtrlArray(m_IndependentList, name) ? 1 : 0;
}

void CLogitData::InsertBeforeModelLine(CLIST<CCmdInfo>& list, const CString& line)
{
    int model = -1;
    int index = 0;
    for (const auto& info : list) {
        if (info.m_strCommand.Str().starts_with(u"MODEL "))
            model = index;
        ++index;
    }
    if (model < 0)
        AppendCommandLine(list, line);
    else
        CStringUtil::InsertStringAt(list, line, model);
}

void CLogitData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleLogit, list);

    // Conditional terms come first and end with "; "; the constant counts
    // only while its check box was both checked and enabled.
    const int constant = m_ConstantCheck && m_ConstantCheckEnable ? 1 : 0;
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = ";
    if (m_ConditionalList.GetSize() > 0) {
        AddVariables(model, m_ConditionalList, u"+");
        model += u"; ";
    }
    model += AddOnConditionCmd(u"CONSTANT", constant);
    model += AddOnConditionCmd(u"+", constant && m_IndependentList.GetSize() > 0);
    AddVariables(model, m_IndependentList, u"+");
    AppendCommandLine(list, model);

    if (m_SaveFileCheck && m_SaveFileCheckEnable)
        AddSaveCmd(m_SaveFileEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");

    // A discrete choice model states its confidence here; without choice
    // sets the estimation page writes the estimate line alone.
    const int confidence = m_SetsPresent && !m_ConfiState && IsToBeWritten(m_Confidence) ? 1 : 0;
    CString estimate = AddOnConditionCmd(u"ESTIMATE ", m_SetsPresent);
    estimate += AddOnConditionCmd(u"/ CONFI = ", confidence);
    estimate += AddOnConditionCmd(m_Confidence, confidence);
    AppendCommandLine(list, estimate);
}

void CLogitData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
    // Variables the open data sheet no longer has leave the model too.
    if (IsSheetOpen())
        for (CGUIArray<CGUIDataVariable>* list : {&m_DependentList, &m_IndependentList, &m_ConditionalList})
            if (list->GetSize() > 0)
                UpdateCtrlList(list, &all, 0);
}

bool CLogitData::IsSheetOpen()
{
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    return sheet && sheet->IsValid();
}

void CLogitData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The ints in member order, the file name, then the holders in member
    // order.
    kal::SerializeValues(ar, m_ConstantCheck, m_SaveFileCheck, m_ConstantCheckEnable, m_SaveFileCheckEnable,
                         m_SaveCombo, m_ConfiState, m_SetsPresent, m_SaveFileEdit, m_SourceList, m_DependentList,
                         m_IndependentList, m_ConditionalList, m_Confidence);
}
