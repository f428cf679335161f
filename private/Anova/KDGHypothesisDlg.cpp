#include "private/Anova/KDGHypothesisDlg.h"

#include "framework/BaseGui.h"
#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Anova/KDGMatrixText.h"
#include "private/Anova/KDGModelTerms.h"

#include <cmath>
#include <unordered_set>

IMPLEMENT_DYNAMIC(CHypothesisDlg, CKVGridMultiCtrlBaseDlg)
IMPLEMENT_DYNAMIC(CHypothesisErrorDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CHypothesisDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(CHypothesisDlg::IDC_EFFECT_KIND, &CHypothesisDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisDlg::IDC_SPECIFY_KIND, &CHypothesisDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisDlg::IDC_CONTRAST_NONE, &CHypothesisDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisDlg::IDC_CONTRAST_DIFFERENCE, &CHypothesisDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisDlg::IDC_CONTRAST_POLYNOMIAL, &CHypothesisDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisDlg::IDC_CONTRAST_CUSTOM, &CHypothesisDlg::OnChoice)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CHypothesisErrorDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CHypothesisErrorDlg::IDC_ERROR_RESIDUAL, &CHypothesisErrorDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisErrorDlg::IDC_ERROR_TERM_KIND, &CHypothesisErrorDlg::OnChoice)
    ON_BN_CLICKED(CHypothesisErrorDlg::IDC_ERROR_MATRIX_KIND, &CHypothesisErrorDlg::OnChoice)
END_MESSAGE_MAP()

namespace {

// Fills `combo` with the model's terms and returns it (null: reported).
CComboBox* FillTerms(const CGUIBaseDlg& page, UINT id, const CLastModel& model)
{
    CComboBox* combo = page.GetComboBoxWnd(id);
    if (!combo) {
        page.ReportAssertion(__LINE__);
        return nullptr;
    }
    combo->ResetContent();
    for (const CString& term : model.GetTerms())
        combo->AddString(term);
    return combo;
}

// Shows `text` selected in `combo` (its first entry when it has no such
// entry); reads the selection back when saving.
void ExchangeChoice(CDataExchange* pDX, CComboBox* combo, CString& text)
{
    if (!combo)
        return;
    if (pDX->m_bSaveAndValidate) {
        const int selected = combo->GetCurSel();
        text = selected >= 0 ? combo->GetLBText(selected) : CString();
        return;
    }
    int index = combo->GetCount() > 0 ? 0 : -1;
    for (int i = 0; i < combo->GetCount(); ++i)
        if (combo->GetLBText(i) == text)
            index = i;
    combo->SetCurSel(index);
}

} // namespace

// --- Hypothesis page ----------------------------------------------------------

BOOL CHypothesisDlg::OnInitDialog()
{
    if (m_pData)
        m_Model = CLastModel::For(CLastModel::TestCommandOf(*m_pData));
    FillTerms(*this, IDC_EFFECT, m_Model);
    CGUIPageDlg::OnInitDialog();
    GetGrid().SetColumnWidth(0, GetGrid().GetColumnWidth(1) / 4);
    return TRUE;
}

void CHypothesisDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    ExchangeChoice(pDX, GetComboBoxWnd(IDC_EFFECT), m_Work.m_Effect);
    CGridCtrl& grid = GetGrid();
    if (!pDX->m_bSaveAndValidate) {
        grid.SetRowCount(m_Work.m_Rows.GetSize() + 1);
        for (int i = 0; i < m_Work.m_Rows.GetSize(); ++i)
            grid.SetItemText(i + 1, 1, m_Work.m_Rows[i]);
        return;
    }
    m_Work.m_Rows.RemoveAll();
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        CString text = grid.GetItemText(row, 1);
        if (!text.Trim().IsEmpty())
            m_Work.m_Rows.Add(text);
    }
    const UINT problem = Validate();
    const bool onEffect = !m_Model.IsEstimated() || problem == kMsgUnknownVariable;
    DDX_ControlWarn(pDX, onEffect ? IDC_EFFECT : IDC_GRID, problem);
}

UINT CHypothesisDlg::MatrixProblem(const CString& text)
{
    if (ContainsControlCharacter(text))
        return kMsgControlCharacter;
    switch (CMatrixText::Check(CMatrixText::Parse(text))) {
    case CMatrixText::Problem::NotANumber: return kMsgNotANumber;
    case CMatrixText::Problem::Ragged: return kMsgRagged;
    default: return 0;
    }
}

UINT CHypothesisDlg::TermProblem(const CString& term)
{
    if (ContainsControlCharacter(term))
        return kMsgControlCharacter;
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    std::unordered_set<CString> known;
    for (const auto& variable : all)
        known.insert(variable.GetVariableName());
    CGUIArray<CString> terms;
    terms.Add(term);
    return CModelTerms::FindUnknownVariable(terms, [&known](const CString& name) { return known.count(name) > 0; }) >= 0
               ? kMsgUnknownVariable
               : 0;
}

UINT CHypothesisDlg::Validate() const
{
    if (!m_Model.IsEstimated())
        return CLastModel::NoModelMessage(m_pData ? CLastModel::TestCommandOf(*m_pData) : 0);
    const CGUIArray<CString>& rows = m_Work.m_Rows;
    if (m_Work.IsSpecify()) {
        for (const CString& row : rows)
            if (ContainsControlCharacter(row))
                return kMsgControlCharacter;
        return rows.IsEmpty() ? kMsgNoCombination : 0;
    }
    if (const UINT problem = TermProblem(m_Work.m_Effect))
        return problem;
    if (!m_Work.IsCustomContrast())
        return 0;
    CString matrix;
    for (const CString& row : rows)
        matrix += row + u";";
    if (const UINT problem = MatrixProblem(matrix))
        return problem;
    const CMatrixText::Rows parsed = CMatrixText::Parse(matrix);
    if (parsed.empty())
        return kMsgRagged;
    for (const auto& row : parsed)
        if (std::abs(CMatrixText::RowSum(row)) > 1e-9)
            return kMsgContrastSum;
    return 0;
}

void CHypothesisDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool effect = IsDlgButtonChecked(IDC_EFFECT_KIND) != 0;
    for (const UINT id : {IDC_EFFECT_LABEL, IDC_EFFECT, IDC_CONTRAST_NONE, IDC_CONTRAST_DIFFERENCE,
                          IDC_CONTRAST_POLYNOMIAL, IDC_CONTRAST_CUSTOM})
        EnableCtrl(id, effect);
    const bool polynomial = effect && IsDlgButtonChecked(IDC_CONTRAST_POLYNOMIAL);
    EnableCtrl(IDC_ORDER_LABEL, polynomial);
    EnableCtrl(IDC_ORDER, polynomial);
    const bool rows = !effect || IsDlgButtonChecked(IDC_CONTRAST_CUSTOM);
    for (const UINT id : std::initializer_list<UINT>{IDC_ROWS_LABEL, IDC_GRID, IDC_INSERT_ROW, IDC_DELETE_ROW})
        EnableCtrl(id, rows);
    // The column says what a row holds; set only on a change, since a view
    // redraws the whole grid for it.
    const CString header = effect ? CString(u"Coefficients") : CString(u"Linear combination");
    if (GetGrid().GetItemText(0, 1) != header)
        GetGrid().SetItemText(0, 1, header);
}

// --- Error page ---------------------------------------------------------------

BOOL CHypothesisErrorDlg::OnInitDialog()
{
    if (m_pData)
        m_Model = CLastModel::For(CLastModel::TestCommandOf(*m_pData));
    FillTerms(*this, IDC_ERROR_TERM, m_Model);
    return CGUIPageDlg::OnInitDialog();
}

void CHypothesisErrorDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    ExchangeChoice(pDX, GetComboBoxWnd(IDC_ERROR_TERM), m_Work.m_ErrorTerm);
    if (pDX->m_bSaveAndValidate) {
        const auto [message, control] = Validate();
        DDX_ControlWarn(pDX, control, message);
    }
}

std::pair<UINT, UINT> CHypothesisErrorDlg::Validate() const
{
    if (const UINT problem = CHypothesisDlg::MatrixProblem(m_Work.m_DMatrix))
        return {problem, IDC_DMATRIX};
    CGUITabDlg* tab = GetTabDlg();
    const auto* hypothesis = tab ? tab->FindPage<CHypothesisDlg>() : nullptr;
    const int rows = hypothesis ? hypothesis->HypothesisRowCount() : -1;
    const auto d = CMatrixText::Parse(m_Work.m_DMatrix);
    if (!d.empty() && rows >= 0 && static_cast<int>(d.size()) != rows)
        return {kMsgDMatrixRows, IDC_DMATRIX};
    switch (CRadioUtil::GetRadioItem(CHypothesisErrorData::kErrorRadio, m_Work.m_ErrorRadio)) {
    case IDC_ERROR_TERM_KIND: return {CHypothesisDlg::TermProblem(m_Work.m_ErrorTerm), IDC_ERROR_TERM};
    case IDC_ERROR_MATRIX_KIND: {
        if (const UINT problem = CHypothesisDlg::MatrixProblem(m_Work.m_ErrorMatrix))
            return {problem, IDC_ERROR_MATRIX};
        const auto e = CMatrixText::Parse(m_Work.m_ErrorMatrix);
        const auto size = static_cast<std::size_t>(m_Model.GetDependents().GetSize());
        if (e.empty() || e.size() != size || e.front().size() != size)
            return {kMsgErrorMatrixSize, IDC_ERROR_MATRIX};
        return {0, 0};
    }
    default: return {0, 0};
    }
}

void CHypothesisErrorDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    EnableCtrl(IDC_ERROR_TERM, IsDlgButtonChecked(IDC_ERROR_TERM_KIND) != 0);
    EnableCtrl(IDC_ERROR_MATRIX, IsDlgButtonChecked(IDC_ERROR_MATRIX_KIND) != 0);
}
