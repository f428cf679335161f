#include "private/Multivariate/KDGCorrOptionsData.h"

#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "host/KalAssertDlg.h"
#include "private/Multivariate/KDGCorrelationsTabData.h"

IMPLEMENT_SERIAL(CCorrOptionsData, CGUIBaseObj, 1)

namespace {

using Ids = CCorrOptionsDlgIds;

} // namespace

CString CCorrOptionsData::GetTail(const CCorrelationsData& correlations) const
{
    // With pairwise deletion and no EM the slash goes in only with Hadi;
    // otherwise the options follow the line's " / PAIRWISE".
    const bool pairwiseChosen = correlations.GetListWiseRadio() != 0;
    const int slash = pairwiseChosen && !m_EstimationCheck ? m_HadiCheck : 1;
    CString tail = AddOnConditionCmd(u" /", slash);

    // Probabilities belong to the Pearson correlation, whatever data type
    // the first page shows now.
    const UINT measure =
        CComboUtil::GetComboItem(CCorrelationsDlgIds::IDC_CONTINUOUS_COMBO, correlations.GetContinuousDataCombo(), 0);
    if (measure == kPearsonItem && m_ProbabilitiesCheck) {
        switch (CRadioUtil::GetRadioItem(Ids::IDC_BONFERRONI, m_ProbabilityRadio)) {
        case Ids::IDC_BONFERRONI: tail += u" BONF"; break;
        case Ids::IDC_DUNN_SIDAK: tail += u" DUNN"; break;
        case Ids::IDC_UNADJUSTED: tail += u" PROB"; break;
        default: break;
        }
    }

    tail += AddOnConditionCmd(u" EM", m_EstimationCheck);
    const UINT distribution = CRadioUtil::GetRadioItem(Ids::IDC_DISTRIBUTION_GROUP, m_DistributionRadio);
    const int normal = m_EstimationCheck && distribution == Ids::IDC_NORMAL;
    tail += AddOnConditionCmd(u" NORMAL = ", normal);
    tail += AddOnConditionCmd(m_NormalFirstEdit, normal);
    tail += AddOnConditionCmd(u", ", normal);
    tail += AddOnConditionCmd(m_NormalSecondEdit, normal);
    // The t distribution at its default degrees of freedom goes without a
    // number.
    const bool t = m_EstimationCheck && distribution == Ids::IDC_T;
    const bool dfAsDefault = GetValueState(m_DfEdit) != 0;
    tail += AddOnConditionCmd(u" T", t && dfAsDefault);
    tail += AddOnConditionCmd(u" T = ", t && !dfAsDefault);
    tail += AddOnConditionCmd(m_DfEdit, t && !dfAsDefault);
    if (m_EstimationCheck) {
        tail += AddEditValueCmd(m_IterationsEdit, GetDefaultIterationsEdit(), 0, u" ITER = ", 1);
        tail += AddEditValueCmd(m_ConvergenceEdit, GetDefaultConvergenceEdit(), 0, u" CONV = ", 1);
    }

    tail += AddOnConditionCmd(u" HADI", m_HadiCheck);
    if (m_HadiCheck)
        tail += AddEditValueCmd(m_ToleranceEdit, GetDefaultToleranceEdit(), 0, u" TOL = ", 1);
    return tail;
}

void CCorrOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CGUIBaseObj* owner = nullptr;
    GetParent(owner);
    if (!owner)
        return;
    const auto* tab = dynamic_cast<const CCorrelationsTabData*>(owner);
    if (!tab) {
        // The page serves the correlations tab only.
        CKalAssertDlg("Source/KDGCorrOptionsData", 274).DoPrint();
        return;
    }
    CString tail = GetTail(*tab->GetCorrelationsData());
    // A tail without options keeps the blank before its slash.
    CStringUtil::RemoveTrailingChar(tail, u'/');
    CStringUtil::ConcatStringAt(list, tail, -1);
}

void CCorrOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The five choices, then the holders: iterations, convergence,
    // tolerance, the two normal parameters, df (not member order).
    kal::SerializeValues(ar, m_ProbabilitiesCheck, m_EstimationCheck, m_HadiCheck, m_ProbabilityRadio,
                         m_DistributionRadio, m_IterationsEdit, m_ConvergenceEdit, m_ToleranceEdit, m_NormalFirstEdit,
                         m_NormalSecondEdit, m_DfEdit);
}
