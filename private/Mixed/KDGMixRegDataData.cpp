#include "private/Mixed/KDGMixRegDataData.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGMatrixText.h"
#include "private/Mixed/KDGMixRegModelData.h"
#include "private/Mixed/KDGMixedLists.h"

IMPLEMENT_SERIAL(CMixRegDataData, CGUIBaseObj, 1)

bool CMixRegDataData::IsWide() const
{
    return CRadioUtil::GetRadioItem(kLayoutRadio, m_LayoutRadio) == CMixRegDataDlgIds::IDC_WIDE_RADIO;
}

void CMixRegDataData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(CMixRegModelData::kModuleMixReg, list);

    const bool wide = IsWide();
    CString line(u"DATA ");
    if (wide)
        AddVariables(line, m_RepeatedList, u" ");
    line += wide ? u" / WIDE ID = " : u"/ LONG ID = ";
    AddVariables(line, m_IdList, u" ");
    if (!wide) {
        line += u" TIME = ";
        AddVariables(line, m_TimeList, u" ");
    } else if (!ContainsControlCharacter(m_TimesEdit)) {
        // The times as numbers separated by single blanks.
        const CMatrixText::Rows rows = CMatrixText::Parse(m_TimesEdit);
        if (!rows.empty())
            line += u" TIMES = " + CMatrixText::Format(rows);
    }
    AppendCommandLine(list, line);

    if (wide && m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, u"", u"");
}

void CMixRegDataData::FillListSource()
{
    kal::mixed::RefreshLists(*this, m_SourceList, {&m_IdList, &m_TimeList, &m_RepeatedList});
}

void CMixRegDataData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_LayoutRadio, m_SaveCheck, m_TimesEdit, m_SaveEdit, m_SourceList, m_IdList, m_TimeList,
                         m_RepeatedList);
}
