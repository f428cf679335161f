#include "private/Anova/KDGHypothesisData.h"

#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"
#include "private/Anova/KDGLastModel.h"
#include "private/Anova/KDGMatrixText.h"

IMPLEMENT_SERIAL(CHypothesisData, CGUIBaseObj, 1)
IMPLEMENT_SERIAL(CHypothesisErrorData, CGUIBaseObj, 1)

namespace {

// Typed text reaches a line only without control characters: it could
// start a line of its own.
bool Writable(const CString& text)
{
    return !text.IsEmpty() && !ContainsControlCharacter(text);
}

} // namespace

bool CHypothesisData::IsSpecify() const
{
    return CRadioUtil::GetRadioItem(kKindRadio, m_KindRadio) == CHypothesisDlgIds::IDC_SPECIFY_KIND;
}

bool CHypothesisData::IsCustomContrast() const
{
    return !IsSpecify() &&
           CRadioUtil::GetRadioItem(kContrastRadio, m_ContrastRadio) == CHypothesisDlgIds::IDC_CONTRAST_CUSTOM;
}

int CHypothesisData::HypothesisRowCount() const
{
    if (!IsSpecify() && !IsCustomContrast())
        return -1;
    int rows = 0;
    for (const CString& row : m_Rows)
        rows += CString(row).Trim().IsEmpty() ? 0 : 1;
    return rows;
}

void CHypothesisData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(CLastModel::ModuleId(CLastModel::TestCommandOf(*this)), list);
    AppendCommandLine(list, u"HYPOTHESIS");
    if (IsSpecify()) {
        for (CString row : m_Rows)
            if (Writable(row.Trim()))
                AddStringCmd(row, list, u"SPECIFY ", u"", 1);
        return;
    }
    if (Writable(m_Effect))
        AppendCommandLine(list, u"EFFECT = " + m_Effect);
    switch (CRadioUtil::GetRadioItem(kContrastRadio, m_ContrastRadio)) {
    case CHypothesisDlgIds::IDC_CONTRAST_NONE: break;
    case CHypothesisDlgIds::IDC_CONTRAST_DIFFERENCE: AppendCommandLine(list, u"CONTRAST / DIFFERENCE"); break;
    case CHypothesisDlgIds::IDC_CONTRAST_POLYNOMIAL:
        AppendCommandLine(list, u"CONTRAST / POLYNOMIAL" + AddChangedValueCmd(u" ORDER = ", m_OrderEdit));
        break;
    case CHypothesisDlgIds::IDC_CONTRAST_CUSTOM: {
        CMatrixText::Rows rows;
        for (const CString& row : m_Rows)
            if (!ContainsControlCharacter(row))
                for (auto& parsed : CMatrixText::Parse(row))
                    rows.push_back(std::move(parsed));
        if (!rows.empty())
            AddStringCmd(CMatrixText::Format(rows), list, u"CONTRAST [ ", u" ]", 1);
        break;
    }
    default: CKalAssertDlg("Source/KDGHypothesisData", __LINE__).DoPrint(); break;
    }
}

void CHypothesisData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_KindRadio, m_ContrastRadio, m_Effect, m_OrderEdit, m_Rows);
}

void CHypothesisErrorData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (Writable(m_DMatrix)) {
        const CMatrixText::Rows rows = CMatrixText::Parse(m_DMatrix);
        if (!rows.empty())
            AddStringCmd(CMatrixText::Format(rows), list, u"DMATRIX [ ", u" ]", 1);
    }
    switch (CRadioUtil::GetRadioItem(kErrorRadio, m_ErrorRadio)) {
    case CHypothesisErrorDlgIds::IDC_ERROR_RESIDUAL: break;
    case CHypothesisErrorDlgIds::IDC_ERROR_TERM_KIND:
        if (Writable(m_ErrorTerm)) {
            CString term = m_ErrorTerm;
            term.Replace(u"'", u"''");
            AddStringCmd(term, list, u"ERROR '", u"'", 1);
        }
        break;
    case CHypothesisErrorDlgIds::IDC_ERROR_MATRIX_KIND:
        if (Writable(m_ErrorMatrix))
            AddStringCmd(CMatrixText::Format(CMatrixText::Parse(m_ErrorMatrix)), list, u"ERROR [", u"]", 1);
        break;
    default: CKalAssertDlg("Source/KDGHypothesisData", __LINE__).DoPrint(); break;
    }
    AppendCommandLine(list, u"TEST");
}

void CHypothesisErrorData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ErrorRadio, m_DMatrix, m_ErrorTerm, m_ErrorMatrix);
}
