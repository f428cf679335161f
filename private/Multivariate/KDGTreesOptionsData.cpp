#include "private/Multivariate/KDGTreesOptionsData.h"

#include "framework/BootStrapData.h"
#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGTreesTabData.h"

IMPLEMENT_SERIAL(CTreesOptionsData, CGUIBaseObj, 1)

void CTreesOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    const auto* tab = dynamic_cast<const CTreesTabData*>(parent);
    const bool classification = !tab || tab->GetTreesData()->IsClassification();

    // Each kind of tree keeps its own split rule; the first is the default.
    const int split = classification ? m_ClassSplitCombo : m_RegressionSplitCombo;
    CString clause;
    if (split != GetDefaultSplitCombo())
        clause += u" SPLIT = " +
                  CComboUtil::GetComboString(classification ? kClassSplitList : kRegressionSplitList, split, 0);
    clause += AddChangedValueCmd(u" MINNODE = ", m_MinNodeEdit);
    clause += AddChangedValueCmd(u" DEPTH = ", m_DepthEdit);
    if (m_PruneCheck) {
        clause += u" PRUNE";
        clause += AddChangedValueCmd(u" FOLDS = ", m_FoldsEdit);
    }
    AttachToEstimateLine(list, clause, false);
}

void CTreesOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ClassSplitCombo, m_RegressionSplitCombo, m_PruneCheck, m_MinNodeEdit, m_DepthEdit,
                         m_FoldsEdit);
}
