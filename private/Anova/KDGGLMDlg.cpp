#include "private/Anova/KDGGLMDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Regression/KDGRegressionOptionsDlg.h"

#include <charconv>
#include <string>
#include <unordered_set>

IMPLEMENT_DYNAMIC(CGLMDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CGLMDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CGLMDlg::IDC_ADD_MAIN, &CGLMDlg::OnAddMainEffects)
    ON_BN_CLICKED(CGLMDlg::IDC_ADD_INTERACTION, &CGLMDlg::OnAddInteraction)
    ON_BN_CLICKED(CGLMDlg::IDC_NEST, &CGLMDlg::OnNest)
    ON_BN_CLICKED(CGLMDlg::IDC_ADD_POLYNOMIAL, &CGLMDlg::OnAddPolynomial)
    ON_BN_CLICKED(CGLMDlg::IDC_FULL_FACTORIAL, &CGLMDlg::OnFullFactorial)
    ON_BN_CLICKED(CGLMDlg::IDC_REMOVE_TERM, &CGLMDlg::OnRemoveTerm)
    ON_BN_CLICKED(CGLMDlg::IDC_SAVE_CHECK, &CGLMDlg::OnSaveCheck)
    ON_BN_CLICKED(IDC_RESET, &CGLMDlg::OnReset)
END_MESSAGE_MAP()

CGLMDlg::CGLMDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = [] { return false; },
                 .afterMove = [this] { NotifyTab(); }});
    AddRoleList({.list = IDC_CATEGORY_LIST,
                 .add = IDC_ADD_CATEGORY,
                 .remove = IDC_REMOVE_CATEGORY,
                 .menuCommand = ID_MENU_CATEGORY,
                 .menuLabel = IDC_CATEGORY_LABEL});
}

BOOL CGLMDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO))
        CComboUtil::FillCombo(CGLMData::kSaveCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    return CGUIBaseDlg::OnInitDialog();
}

CListCtrl& CGLMDlg::TermList() const
{
    return *dynamic_cast<CListCtrl*>(GetDlgItem(IDC_TERM_LIST));
}

void CGLMDlg::ShowTerms(const CGUIArray<CString>& terms)
{
    TermList().SetItems(static_cast<std::size_t>(terms.GetSize()),
                        [&terms](std::size_t i) { return terms[static_cast<int>(i)]; });
}

CGUIArray<CString> CGLMDlg::ShownTerms() const
{
    const CListCtrl& list = TermList();
    CGUIArray<CString> terms;
    for (int i = 0; i < list.GetItemCount(); ++i)
        terms.Add(list.GetItemText(i));
    return terms;
}

void CGLMDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate) {
        ShowTerms(m_Work.m_Terms);
        return;
    }
    m_Work.m_Terms = ShownTerms();
    // Every variable a term names must be one of the data sheet's.
    // The source list shows the data sheet's variables and keeps an index of them.
    const CGUIListCtrl& source = ListCtrl(IDC_SOURCE_LIST);
    const int unknown = CModelTerms::FindUnknownVariable(
        m_Work.m_Terms, [&source](const CString& name) { return source.FindVariable(name) >= 0; });
    if (unknown >= 0) {
        // The refused term is selected, ready to be removed.
        TermList().SetSelection({unknown});
        UpdateDependentWindows();
        DDX_ControlWarn(pDX, IDC_TERM_LIST, kMsgUnknownTermVariable);
    }
}

std::vector<CString> CGLMDlg::SelectedSourceNames()
{
    std::vector<CString> names;
    for (const CGUIDataVariable& variable : ListCtrl(IDC_SOURCE_LIST).GetSelectedVariables())
        names.push_back(variable.GetVariableName());
    return names;
}

bool CGLMDlg::SelectionIsNumeric()
{
    return !CGUIListCtrl::IsSelectetVariableTypePresent(&ListCtrl(IDC_SOURCE_LIST), NmsEnum::VT_STRING);
}

void CGLMDlg::AddTerms(const std::vector<CString>& terms)
{
    CGUIArray<CString> shown = ShownTerms();
    const int before = shown.GetSize();
    CModelTerms::AddUnique(shown, terms);
    if (shown.GetSize() != before)
        ShowTerms(shown);
    UpdateDependentWindows();
}

void CGLMDlg::OnAddMainEffects()
{
    std::vector<CString> terms;
    for (const CString& name : SelectedSourceNames())
        terms.push_back(CModelTerms::MainEffect(name));
    AddTerms(terms);
}

void CGLMDlg::OnAddInteraction()
{
    AddTerms({CModelTerms::Interaction(SelectedSourceNames())});
}

void CGLMDlg::OnNest()
{
    const std::vector<CString> within = SelectedSourceNames();
    CListCtrl& list = TermList();
    CGUIArray<CString> terms = ShownTerms();
    for (const int i : list.GetSelectedItems()) {
        const CString nested = CModelTerms::Nested(terms[i], within);
        if (!nested.IsEmpty())
            terms[i] = nested;
    }
    // A nested term that repeats another is dropped.
    CGUIArray<CString> unique;
    std::vector<CString> all(terms.begin(), terms.end());
    CModelTerms::AddUnique(unique, all);
    ShowTerms(unique);
    UpdateDependentWindows();
}

void CGLMDlg::OnAddPolynomial()
{
    // The degree the edit shows now; a text that is no degree gives 2, and
    // OK names it.
    const std::string text = GetDlgItemText(IDC_DEGREE).Trim().ToUtf8();
    int degree = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), degree);
    if (error != std::errc() || end != text.data() + text.size() || degree < CGLMData::kMinDegree ||
        degree > CGLMData::kMaxDegree)
        degree = CGLMData::kMinDegree;
    std::vector<CString> terms;
    for (const CString& name : SelectedSourceNames())
        terms.push_back(CModelTerms::Power(name, degree));
    AddTerms(terms);
}

void CGLMDlg::OnFullFactorial()
{
    AddTerms(CModelTerms::FullFactorial(SelectedSourceNames()));
}

void CGLMDlg::OnRemoveTerm()
{
    CListCtrl& list = TermList();
    std::vector<bool> marked(static_cast<std::size_t>(list.GetItemCount()), false);
    for (const int i : list.GetSelectedItems())
        marked[static_cast<std::size_t>(i)] = true;
    list.DeleteItems(marked);
    UpdateDependentWindows();
}

bool CGLMDlg::IsMixtureModel() const
{
    CGUITabDlg* tab = GetTabDlg();
    const auto* options = tab ? tab->FindPage<CRegressionOptionsDlg>() : nullptr;
    return options && options->IsMixtureChecked();
}

void CGLMDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    const int selected = ListCtrl(IDC_SOURCE_LIST).GetSelectedCount();
    const int terms = TermList().GetSelectedCount();
    EnableCtrl(IDC_ADD_MAIN, selected > 0);
    EnableCtrl(IDC_ADD_INTERACTION, selected >= 2);
    EnableCtrl(IDC_NEST, selected > 0 && terms > 0);
    EnableCtrl(IDC_ADD_POLYNOMIAL, selected > 0 && SelectionIsNumeric());
    EnableCtrl(IDC_FULL_FACTORIAL, selected >= 2 && selected <= CModelTerms::kMaxFactorialVariables);
    EnableCtrl(IDC_REMOVE_TERM, terms > 0);
    // Matrix data and mixture models have no constant; the check keeps its
    // state for when they are gone.
    EnableCtrl(IDC_INCLUDE_CONSTANT, kal::framework::IsOrdinaryData() && !IsMixtureModel());
    const bool matrix = kal::framework::IsMatrixData();
    EnableCtrl(IDC_CASES_LABEL, matrix);
    EnableCtrl(IDC_CASES, matrix);
    EnableCtrl(IDC_MISSING_VALUES, ListCtrl(IDC_CATEGORY_LIST).GetItemCount() > 0);
    OnSaveCheck();
}

void CGLMDlg::OnSaveCheck()
{
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CGLMDlg::OnReset()
{
    CGUIBaseDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_CATEGORY_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
