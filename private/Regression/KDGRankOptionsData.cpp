#include "private/Regression/KDGRankOptionsData.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CRankOptionsData, CGUIBaseObj, 1)

bool CRankOptionsData::IsWeighted() const
{
    CGUIBaseObj* owner = nullptr;
    GetParent(owner);
    return owner && owner->GetDialogID() == kWeightedRow;
}

void CRankOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"RESIDUALS", u"");

    CString line(u"ESTIMATE /");
    // The scores are a choice, not a number: written when they are not
    // Wilcoxon's, or when every option is asked for. The weighted row
    // always names its weights: they are what it is about.
    if (m_ScoresCombo != 0 || kal::framework::WriteEveryOption())
        line += u" SCORES = " + CComboUtil::GetComboString(kScoresCombo, m_ScoresCombo, 0);
    if (IsWeighted())
        line += u" WEIGHTS = " + CComboUtil::GetComboString(kWeightsCombo, m_WeightsCombo, 0);
    line += AddEditValueCmd(m_ConfidenceEdit, u" CONFI = ", IsToBeWritten(m_ConfidenceEdit));
    AppendCommandLine(list, line);
}

void CRankOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ScoresCombo, m_WeightsCombo, m_ConfidenceEdit, m_SaveCheck, m_SaveEdit);
}
