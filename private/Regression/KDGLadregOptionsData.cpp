#include "private/Regression/KDGLadregOptionsData.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CLadregOptionsData, CGUIBaseObj, 1)

void CLadregOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"RESIDUALS", u"");

    CString line(u"ESTIMATE /");
    line += AddEditValueCmd(m_QuantileEdit, u" QUANTILE = ", IsToBeWritten(m_QuantileEdit));
    // The method is a choice, not a number: written when it is not the
    // first one, or when every option is asked for.
    if (m_CiCombo != 0 || kal::framework::WriteEveryOption())
        line += u" CI = " + CComboUtil::GetComboString(kCiCombo, m_CiCombo, 0);
    line += AddEditValueCmd(m_SamplesEdit, u" SAMPLES = ",
                            m_CiCombo == kBootstrapEntry && IsToBeWritten(m_SamplesEdit) ? 1 : 0);
    line += AddEditValueCmd(m_ConfidenceEdit, u" CONFI = ", IsToBeWritten(m_ConfidenceEdit));
    AppendCommandLine(list, line);
}

void CLadregOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_QuantileEdit, m_CiCombo, m_ConfidenceEdit, m_SamplesEdit, m_SaveCheck, m_SaveEdit);
}
