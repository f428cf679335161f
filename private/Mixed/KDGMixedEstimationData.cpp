#include "private/Mixed/KDGMixedEstimationData.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CMixedEstimationData, CGUIBaseObj, 1)

void CMixedEstimationData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const bool ml = CRadioUtil::GetRadioItem(kMethodRadio, m_MethodRadio) == CMixedEstimationDlgIds::IDC_ML_RADIO;
    CString line(u"ESTIMATE / METHOD = ");
    line += ml ? u"ML" : u"REML";
    line += AddChangedValueCmd(u" ITER = ", m_IterEdit);
    line += AddChangedValueCmd(u" CONV = ", m_ConvEdit);
    line += AddChangedValueCmd(u" CONFI = ", m_ConfiEdit);
    line += AddOnConditionCmd(u" BLUP", m_BlupCheck);
    AppendCommandLine(list, line);
}

void CMixedEstimationData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_MethodRadio, m_BlupCheck, m_IterEdit, m_ConvEdit, m_ConfiEdit);
}
