#include "private/Regression/KDGLogitPostData.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CLogitPostData, CGUIBaseObj, 1)

void CLogitPostData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleLogit, list);
    if (m_PredictCheck) {
        CString line(u"PREDICT ");
        // The values were checked and rewritten at OK; text that could end
        // the line is never written.
        if (!m_AtEdit.IsEmpty() && !ContainsControlCharacter(m_AtEdit))
            line += u"/ AT " + m_AtEdit;
        AppendCommandLine(list, line);
    }
    if (m_MarginsCheck) {
        const bool average = CRadioUtil::GetRadioItem(kMarginsRadio, m_MarginsRadio) != kMarginsRadio;
        AppendCommandLine(list, average ? u"MARGINS / AVERAGE" : u"MARGINS / ATMEANS");
    }
    if (m_ClassifyCheck) {
        const int cut = IsToBeWritten(m_CutEdit);
        AppendCommandLine(list, u"CLASSIFY " + AddOnConditionCmd(u"/ CUT = ", cut) + AddOnConditionCmd(m_CutEdit, cut));
    }
}

void CLogitPostData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_PredictCheck, m_AtEdit, m_MarginsCheck, m_MarginsRadio, m_ClassifyCheck, m_CutEdit);
}
