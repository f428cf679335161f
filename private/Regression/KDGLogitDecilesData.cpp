#include "private/Regression/KDGLogitDecilesData.h"

#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CLogitDecilesData, CGUIBaseObj, 1)

void CLogitDecilesData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (!m_DecilesCheck)
        return;
    CString line(u"DECILE /");
    line += AddChangedValueCmd(u" GROUPS = ", m_Groups);
    switch (CRadioUtil::GetRadioItem(kGroupingRadio, m_GroupingRadio)) {
    case CLogitDecilesDlgIds::IDC_EQUAL_COUNTS: break;
    case CLogitDecilesDlgIds::IDC_EQUAL_WIDTHS: line += u" WIDTH"; break;
    default: CKalAssertDlg("Source/KDGLogitDecilesData", __LINE__).DoPrint(); break;
    }
    // Without an option the slash goes: "DECILE ".
    CStringUtil::RemoveTrailingChar(line, u'/');
    AppendCommandLine(list, line);
}

void CLogitDecilesData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_DecilesCheck, m_GroupingRadio, m_Groups);
}
