#include "private/Regression/KDGRegressionPredictData.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CRegressionPredictData, CGUIBaseObj, 1)

int CRegressionPredictData::GetSaveComboCount()
{
    return CComboUtil::GetComboCount(kSaveCombo, 0);
}

UINT CRegressionPredictData::GetSaveComboIDS(int index)
{
    return CComboUtil::GetComboItem(kSaveCombo, index, 0);
}

int CRegressionPredictData::GetSaveComboCommand(int index, CString& command)
{
    if (index < 0 || index >= GetSaveComboCount())
        return 0;
    command = CComboUtil::GetComboString(kSaveCombo, index, 0);
    return 1;
}

void CRegressionPredictData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (!m_PredictCheck)
        return;
    // The save line goes first: the host saves what the prediction makes.
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");
    // The level is always written, in six significant digits.
    CString file = m_UseEdit;
    file.Replace(u"'", u"''");
    AppendCommandLine(list, u"PREDICT '" + file + u"' / CONFI = " + NumberText(m_Confidence.m_Value));
}

void CRegressionPredictData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_UseEdit, m_SaveEdit, m_PredictCheck, m_SaveCheck, m_SaveCombo, m_Confidence);
}
