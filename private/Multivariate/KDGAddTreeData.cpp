#include "private/Multivariate/KDGAddTreeData.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CAddTreeData, CGUIBaseObj, 1)

void CAddTreeData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleCluster, list);
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"", u"");

    CString line(u"ADDTREE ");
    AddVariables(line, m_ObjectList, u" ");
    line += u" /";
    // A matrix holds the dissimilarities; cases give distances.
    if (kal::framework::IsMatrixData()) {
        const bool similarities =
            CRadioUtil::GetRadioItem(kInputRadio, m_InputRadio) == CAddTreeDlgIds::IDC_SIMILARITY_RADIO;
        line += AddOnConditionCmd(u" SIMILARITY", similarities ? 1 : 0);
    } else {
        line += kal::multivariate::DistanceClause(*this, m_DistanceCombo, m_PowerEdit);
    }
    const bool ultrametric = CRadioUtil::GetRadioItem(kTreeRadio, m_TreeRadio) == CAddTreeDlgIds::IDC_ULTRAMETRIC_RADIO;
    line += AddOnConditionCmd(u" ULTRAMETRIC", ultrametric ? 1 : 0);
    line += AddOnConditionCmd(u" FITTED", m_FittedCheck);
    // Without an option the slash goes: "ADDTREE A B C ".
    CStringUtil::RemoveTrailingChar(line, u'/');
    AppendCommandLine(list, line);
}

void CAddTreeData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_ObjectList});
}

void CAddTreeData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_InputRadio, m_TreeRadio, m_DistanceCombo, m_FittedCheck, m_SaveCheck, m_SaveEdit,
                         m_SourceList, m_ObjectList, m_PowerEdit);
}
