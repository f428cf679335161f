#include "private/Multivariate/KDGSetCorData.h"

#include "framework/StringUtil.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CSetCorData, CGUIBaseObj, 1)

void CSetCorData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleSetCor, list);

    CString model(u"MODEL ");
    AddVariables(model, m_SetYList, u" ");
    model += u" = ";
    AddVariables(model, m_SetXList, u" ");
    CString partial;
    if (!m_PartialYList.IsEmpty()) {
        partial += u" YPARTIAL = ";
        AddVariables(partial, m_PartialYList, u" ");
    }
    if (!m_PartialXList.IsEmpty()) {
        partial += u" XPARTIAL = ";
        AddVariables(partial, m_PartialXList, u" ");
    }
    model += AddOnConditionCmd(u" /" + partial, partial.IsEmpty() ? 0 : 1);
    AppendCommandLine(list, model);

    CString estimate(u"ESTIMATE /");
    estimate += AddOnConditionCmd(u" RAO", m_RaoCheck);
    estimate += AddOnConditionCmd(u" PILLAI", m_PillaiCheck);
    estimate += AddOnConditionCmd(u" HOTELLING", m_HotellingCheck);
    estimate += AddOnConditionCmd(u" ROY", m_RoyCheck);
    // Without a test the slash goes: "ESTIMATE ".
    CStringUtil::RemoveTrailingChar(estimate, u'/');
    AppendCommandLine(list, estimate);
}

void CSetCorData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_SetYList, &m_PartialYList, &m_SetXList, &m_PartialXList});
}

void CSetCorData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_RaoCheck, m_PillaiCheck, m_HotellingCheck, m_RoyCheck, m_SourceList, m_SetYList,
                         m_PartialYList, m_SetXList, m_PartialXList);
}
