#include "private/Multivariate/KDGJoinOptionsData.h"

#include "framework/StringUtil.h"
#include "private/Multivariate/KDGJoinTabData.h"

IMPLEMENT_SERIAL(CJoinOptionsData, CGUIBaseObj, 1)

void CJoinOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const int join = CStringUtil::SearchStringAtBeginning(list, u"JOIN ");
    if (join < 0)
        return;
    if (m_StandardizeCheck)
        CStringUtil::ConcatStringAt(list, u" STANDARDIZE", join);

    // Clusters of cases only: a tree of variables has no cases to label.
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    const auto* tab = dynamic_cast<const CJoinTabData*>(parent);
    if (!m_SaveCheck || (tab && !tab->GetJoinData()->JoinsCases()))
        return;
    CLIST<CCmdInfo> save;
    AddSaveCmd(m_SaveEdit, save, u"NUMBER = " + NumberText(m_NumberEdit.m_Value), u"");
    if (!save.IsEmpty())
        CStringUtil::InsertStringAt(list, save.GetAt(0).m_strCommand, join);
}

void CJoinOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_StandardizeCheck, m_SaveCheck, m_SaveEdit, m_NumberEdit);
}
