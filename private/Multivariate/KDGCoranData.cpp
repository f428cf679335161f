#include "private/Multivariate/KDGCoranData.h"

#include "framework/StringUtil.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CCoranData, CGUIBaseObj, 1)

void CCoranData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleCoran, list);
    if (!m_WeightList.IsEmpty()) {
        CString freq(u"FREQ ");
        AddVariables(freq, m_WeightList, u" ");
        AppendCommandLine(list, freq);
    }

    CString model(u"MODEL ");
    AddVariables(model, m_RowList, u" ");
    model += u" = ";
    AddVariables(model, m_ColumnList, u" ");
    AppendCommandLine(list, model);

    CString estimate(u"ESTIMATE /");
    if (!m_SupplementaryList.IsEmpty()) {
        estimate += u" SUPPLEMENTARY = ";
        AddVariables(estimate, m_SupplementaryList, u" ");
    }
    // Without an option the slash goes: "ESTIMATE ".
    CStringUtil::RemoveTrailingChar(estimate, u'/');
    AppendCommandLine(list, estimate);
}

void CCoranData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList,
                                    {&m_RowList, &m_ColumnList, &m_SupplementaryList, &m_WeightList});
}

void CCoranData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_RowList, m_ColumnList, m_SupplementaryList, m_WeightList);
}
