#include "private/Multivariate/KDGTreesData.h"

#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CTreesData, CGUIBaseObj, 1)

void CTreesData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleTrees, list);
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveList, m_SaveCombo, 0), u"");

    CString model(u"MODEL ");
    AddVariables(model, m_ResponseList, u" ");
    model += u" = ";
    AddVariables(model, m_PredictorList, u" ");
    AppendCommandLine(list, model);

    AppendCommandLine(list, IsClassification() ? u"ESTIMATE / CLASS" : u"ESTIMATE / REGRESSION");
}

void CTreesData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_ResponseList, &m_PredictorList});
}

void CTreesData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_KindRadio, m_SaveCheck, m_SaveCombo, m_SaveEdit, m_SourceList, m_ResponseList,
                         m_PredictorList);
}
