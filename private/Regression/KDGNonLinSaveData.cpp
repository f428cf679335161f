#include "private/Regression/KDGNonLinSaveData.h"

#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CNonLinSaveData, CGUIBaseObj, 1)

void CNonLinSaveData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (!m_SaveCheck)
        return;
    CLIST<CCmdInfo> save;
    AddSaveCmd(m_SaveEdit, save, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");
    if (save.IsEmpty())
        return;
    int estimate = -1;
    int index = 0;
    for (const auto& info : list) {
        if (info.m_strCommand.Str().starts_with(u"ESTIMATE"))
            estimate = index;
        ++index;
    }
    if (estimate < 0)
        AppendCommandLine(list, save.GetTail().m_strCommand);
    else
        CStringUtil::InsertStringAt(list, save.GetTail().m_strCommand, estimate);
}

void CNonLinSaveData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SaveCheck, m_SaveCombo, m_SaveEdit);
}
