#include "private/Regression/KDGRidgeOptionsData.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CRidgeOptionsData, CGUIBaseObj, 1)

void CRidgeOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"COEFFICIENTS", u"");

    CString line(u"ESTIMATE /");
    if (CRadioUtil::GetRadioItem(kConstantRadio, m_ConstantRadio) == kItemGrid) {
        // Three numbers in one clause: a comma decimal separator turns the
        // commas between them into semicolons.
        const CString separator = LimitsSeparator();
        line += u" KGRID = " + NumberText(m_FromEdit.m_Value) + separator + NumberText(m_ToEdit.m_Value) + separator +
                NumberText(m_StepEdit.m_Value);
    } else {
        line += AddEditValueCmd(m_KEdit, u" K = ", 1);
    }
    line += AddOnConditionCmd(u" RAW", m_StandardizeCheck ? 0 : 1);
    AppendCommandLine(list, line);
}

void CRidgeOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ConstantRadio, m_KEdit, m_FromEdit, m_ToEdit, m_StepEdit, m_StandardizeCheck,
                         m_SaveCheck, m_SaveEdit);
}
