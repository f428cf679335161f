#include "private/Survival/KDGSurvivalOptionsData.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CSurvivalOptionsData, CGUIBaseObj, 1)

void CSurvivalOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString line(u"ESTIMATE /");
    if (CRadioUtil::GetRadioItem(kModelRadio, m_ModelRadio) == kItemParametric) {
        line += u" " + CComboUtil::GetComboString(kDistributionCombo, m_DistributionCombo, 0);
    } else {
        line += u" COX";
        // Breslow's approximation, the first entry, goes without saying.
        if (m_TiesCombo != 0)
            line += u" TIES = " + CComboUtil::GetComboString(kTiesCombo, m_TiesCombo, 0);
    }
    line += AddEditValueCmd(m_IterationsEdit, GetDefaultIterationsEdit(), 0, u" ITER = ", 1);
    line += AddEditValueCmd(m_ConvergenceEdit, GetDefaultConvergenceEdit(), 0, u" CONV=", 1);
    line += AddEditValueCmd(m_ConfidenceEdit, GetDefaultConfidenceEdit(), 0, u" CONFI = ", 1);
    AppendCommandLine(list, line);
}

void CSurvivalOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ModelRadio, m_TiesCombo, m_DistributionCombo, m_IterationsEdit, m_ConvergenceEdit,
                         m_ConfidenceEdit);
}
