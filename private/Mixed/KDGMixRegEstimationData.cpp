#include "private/Mixed/KDGMixRegEstimationData.h"

#include "framework/ResourceUtil.h"
#include "private/Mixed/KDGMixedTabDlg.h"

IMPLEMENT_SERIAL(CMixRegEstimationData, CGUIBaseObj, 1)

bool CMixRegEstimationData::Integrates() const
{
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    auto* tab = dynamic_cast<CMixedTabData*>(parent);
    return tab && tab->GetModelData()->IsNonLinear();
}

void CMixRegEstimationData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const bool correlated =
        CRadioUtil::GetRadioItem(kCovarianceRadio, m_CovarianceRadio) == CMixRegEstimationDlgIds::IDC_CORRELATED_RADIO;
    CString line(u"ESTIMATE / ");
    line += correlated ? u"CORRELATED" : u"INDEPENDENT";
    if (Integrates()) {
        line += AddChangedValueCmd(u" QUAD = ", m_QuadEdit);
        line += AddOnConditionCmd(u" NOADAPT", !m_AdaptiveCheck);
    }
    line += AddChangedValueCmd(u" ITER = ", m_IterEdit);
    line += AddChangedValueCmd(u" CONV = ", m_ConvEdit);
    AppendCommandLine(list, line);
}

void CMixRegEstimationData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_AdaptiveCheck, m_CovarianceRadio, m_QuadEdit, m_IterEdit, m_ConvEdit);
}
