#include "private/Mixed/KDGMixedTestData.h"

#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"
#include "private/Anova/KDGMatrixText.h"

IMPLEMENT_SERIAL(CMixedTestData, CGUIBaseObj, 1)

void CMixedTestData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (!m_DMatrix.IsEmpty() && !ContainsControlCharacter(m_DMatrix)) {
        const CMatrixText::Rows rows = CMatrixText::Parse(m_DMatrix);
        if (!rows.empty())
            AddStringCmd(CMatrixText::Format(rows), list, u"DMATRIX [ ", u" ]", 1);
    }
    CString line(u"TEST / DDF = ");
    switch (CRadioUtil::GetRadioItem(kDdfRadio, m_DdfRadio)) {
    case CMixedTestDlgIds::IDC_DDF_RESIDUAL: line += u"RESIDUAL"; break;
    case CMixedTestDlgIds::IDC_DDF_CONTAINMENT: line += u"CONTAINMENT"; break;
    case CMixedTestDlgIds::IDC_DDF_SATTERTHWAITE: line += u"SATTERTHWAITE"; break;
    case CMixedTestDlgIds::IDC_DDF_KENWARD_ROGER: line += u"KR"; break;
    default:
        CKalAssertDlg("Source/KDGMixedTestData", __LINE__).DoPrint();
        line = u"TEST";
        break;
    }
    AppendCommandLine(list, line);
}

void CMixedTestData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_DdfRadio, m_DMatrix);
}
