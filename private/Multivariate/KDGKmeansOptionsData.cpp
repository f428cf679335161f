#include "private/Multivariate/KDGKmeansOptionsData.h"

#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CKmeansOptionsData, CGUIBaseObj, 1)

void CKmeansOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const int kmeans = CStringUtil::SearchStringAtBeginning(list, u"KMEANS ");
    if (kmeans < 0)
        return;
    CString clause;
    switch (CRadioUtil::GetRadioItem(kCentersRadio, m_CentersRadio)) {
    case CKmeansOptionsDlgIds::IDC_RANDOM_RADIO:
        clause += u" INIT = RANDOM";
        clause += AddChangedValueCmd(u" RSEED = ", m_SeedEdit);
        break;
    case CKmeansOptionsDlgIds::IDC_GROUPS_RADIO: {
        // Without a variable the page refuses OK; a list emptied since
        // writes nothing rather than a clause without its variable.
        CString name;
        AddVariables(name, m_GroupList, u" ");
        clause += AddOnConditionCmd(u" INIT = " + name, name.IsEmpty() ? 0 : 1);
        break;
    }
    default: break;
    }
    clause += AddChangedValueCmd(u" ITER = ", m_IterEdit);
    clause += AddChangedValueCmd(u" CONV=", m_ConvEdit);
    if (!clause.IsEmpty())
        CStringUtil::ConcatStringAt(list, clause, kmeans);

    if (!m_SaveCheck)
        return;
    CLIST<CCmdInfo> save;
    AddSaveCmd(m_SaveEdit, save, m_DistanceCheck ? u"DISTANCE" : u"", u"");
    if (!save.IsEmpty())
        CStringUtil::InsertStringAt(list, save.GetAt(0).m_strCommand, kmeans);
}

void CKmeansOptionsData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_GroupList});
}

void CKmeansOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CentersRadio, m_SaveCheck, m_SaveEdit, m_DistanceCheck, m_SourceList, m_GroupList,
                         m_SeedEdit, m_IterEdit, m_ConvEdit);
}
