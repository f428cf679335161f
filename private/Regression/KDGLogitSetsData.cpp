#include "private/Regression/KDGLogitSetsData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"
#include "private/Regression/KDGLogitData.h"

IMPLEMENT_SERIAL(CLogitSetsData, CGUIBaseObj, 1)

void CLogitSetsData::ApplyTo(CLogitData& model) const
{
    model.SetSetsPresent(GetWindowState() && IsInUse() ? 1 : 0);
}

void CLogitSetsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (!IsInUse() || m_SetList.GetSize() == 0)
        return;
    CString line(u"SET ");
    AddVariables(line, m_SetList, u" ");
    switch (CRadioUtil::GetRadioItem(kHoldRadio, m_HoldRadio)) {
    case CLogitSetsDlgIds::IDC_CODES: break;
    case CLogitSetsDlgIds::IDC_INDICATORS: line += u" / INDICATORS"; break;
    default: CKalAssertDlg("Source/KDGLogitSetsData", __LINE__).DoPrint(); break;
    }
    CLogitData::InsertBeforeModelLine(list, line);
}

void CLogitSetsData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
    // Set variables the open data sheet no longer has are dropped.
    if (CLogitData::IsSheetOpen())
        UpdateCtrlList(&m_SetList, &all, 0);
}

void CLogitSetsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_UseSetsCheck, m_HoldRadio, m_SourceList, m_SetList);
}
