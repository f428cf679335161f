#include "private/Regression/KDGNonLinearDlg.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CNonLinearDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CNonLinearDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(CNonLinearDlg::IDC_FIND_PARAMETERS, &CNonLinearDlg::OnFindParameters)
    ON_BN_CLICKED(IDC_RESET, &CNonLinearDlg::OnReset)
END_MESSAGE_MAP()

namespace {

CString Trimmed(CString text)
{
    text.Trim();
    return text;
}

} // namespace

CNonLinearDlg::CNonLinearDlg(CWnd* parent) : CGUIPageDlg(IDD, parent, IDC_GRID)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = [] { return false; },
                 .maxItems = 1});
}

BOOL CNonLinearDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    // The row numbers need little room, and the four columns of a
    // parameter share the rest, so that the bounds stay in sight.
    CGridCtrl& grid = GetGrid();
    const int width = grid.GetColumnWidth(1);
    grid.SetColumnWidth(0, width / 3);
    for (int column = kName; column <= kUpper; ++column)
        grid.SetColumnWidth(column, width * 3 / 4);
    UpdateDependentWindows();
    return TRUE;
}

std::vector<CString> CNonLinearDlg::VariableNames() const
{
    std::vector<CString> names;
    for (const auto& variable : m_Work.m_SourceList)
        names.push_back(variable.GetVariableName());
    return names;
}

void CNonLinearDlg::ReadGrid()
{
    CGridCtrl& grid = GetGrid();
    for (CGUIArray<CString>* column : {&m_Work.m_Names, &m_Work.m_Starts, &m_Work.m_Lowers, &m_Work.m_Uppers})
        column->RemoveAll();
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        const CString name = Trimmed(grid.GetItemText(row, kName));
        const CString start = Trimmed(grid.GetItemText(row, kStart));
        const CString lower = Trimmed(grid.GetItemText(row, kLower));
        const CString upper = Trimmed(grid.GetItemText(row, kUpper));
        if (name.IsEmpty() && start.IsEmpty() && lower.IsEmpty() && upper.IsEmpty())
            continue;
        m_Work.m_Names.Add(name);
        m_Work.m_Starts.Add(start);
        m_Work.m_Lowers.Add(lower);
        m_Work.m_Uppers.Add(upper);
    }
}

UINT CNonLinearDlg::CheckParameters(int& row) const
{
    const std::vector<CString> variables = VariableNames();
    for (int i = 0; i < m_Work.m_Names.GetSize(); ++i) {
        row = i;
        const CString& name = m_Work.m_Names[i];
        if (ContainsControlCharacter(name) || ContainsControlCharacter(m_Work.m_Starts[i]) ||
            ContainsControlCharacter(m_Work.m_Lowers[i]) || ContainsControlCharacter(m_Work.m_Uppers[i]))
            return kMsgControlCharacter;
        if (!CExpressionCheck::IsParameterName(name) ||
            std::find(variables.begin(), variables.end(), name) != variables.end())
            return kMsgParameterName;
        for (int j = 0; j < i; ++j)
            if (m_Work.m_Names[j] == name)
                return kMsgParameterTwice;
        if (m_Work.m_Starts[i].IsEmpty())
            return kMsgNoStart;
        double start = 0;
        double lower = 0;
        double upper = 0;
        const bool hasLower = !m_Work.m_Lowers[i].IsEmpty();
        const bool hasUpper = !m_Work.m_Uppers[i].IsEmpty();
        if (!ReadTypedNumber(m_Work.m_Starts[i], start) || (hasLower && !ReadTypedNumber(m_Work.m_Lowers[i], lower)) ||
            (hasUpper && !ReadTypedNumber(m_Work.m_Uppers[i], upper)))
            return kMsgNotANumber;
        if ((hasLower && hasUpper && lower >= upper) || (hasLower && start < lower) || (hasUpper && start > upper))
            return kMsgBounds;
    }
    return 0;
}

UINT CNonLinearDlg::ExpressionMessage(const CExpressionCheck::Result& result, bool loss)
{
    using P = CExpressionCheck::Problem;
    switch (result.problem) {
    case P::None: return 0;
    case P::Empty: return loss ? kMsgNoLoss : kMsgNoModel;
    case P::ControlCharacter: return kMsgControlCharacter;
    case P::Unbalanced: return kMsgUnbalanced;
    case P::UnknownName: return loss ? kMsgUnknownLossName : kMsgUnknownName;
    case P::NoParameter: return kMsgNoParameter;
    default: return kMsgSyntax;
    }
}

void CNonLinearDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    CGridCtrl& grid = GetGrid();
    if (!pDX->m_bSaveAndValidate) {
        const auto cell = [](const CGUIArray<CString>& column, int i) {
            return i < column.GetSize() ? column[i] : CString();
        };
        grid.SetRowCount(m_Work.m_Names.GetSize() + 1);
        for (int i = 0; i < m_Work.m_Names.GetSize(); ++i) {
            grid.SetItemText(i + 1, kName, m_Work.m_Names[i]);
            grid.SetItemText(i + 1, kStart, cell(m_Work.m_Starts, i));
            grid.SetItemText(i + 1, kLower, cell(m_Work.m_Lowers, i));
            grid.SetItemText(i + 1, kUpper, cell(m_Work.m_Uppers, i));
        }
        return;
    }
    ReadGrid();
    DDX_ControlWarn(pDX, IDC_DEPENDENT_LIST, m_Work.m_DependentList.IsEmpty() ? kMsgNoDependent : 0);
    int row = 0;
    const UINT parameters = CheckParameters(row);
    if (parameters != 0)
        grid.SetFocusRow(row + 1);
    DDX_ControlWarn(pDX, IDC_GRID, parameters);

    std::vector<CString> names;
    for (const CString& name : m_Work.m_Names)
        names.push_back(name);
    const CExpressionCheck model(VariableNames(), names);
    DDX_ControlWarn(pDX, IDC_MODEL_EDIT, ExpressionMessage(model.Check(m_Work.m_ModelEdit, true), false));
    if (UsesLoss()) {
        const CExpressionCheck loss(VariableNames(), names, CNonLinearData::LossNames());
        DDX_ControlWarn(pDX, IDC_LOSS_EDIT, ExpressionMessage(loss.Check(m_Work.m_LossEdit, false), true));
    }
}

void CNonLinearDlg::OnFindParameters()
{
    // Every name of the model (and loss) that is no variable, function or
    // parameter yet gets a row of its own, in order of use.
    CGridCtrl& grid = GetGrid();
    std::vector<CString> parameters;
    for (int row = 1; row < grid.GetRowCount(); ++row)
        if (const CString name = Trimmed(grid.GetItemText(row, kName)); !name.IsEmpty())
            parameters.push_back(name);
    std::vector<CString> texts{GetDlgItemText(IDC_MODEL_EDIT)};
    if (UsesLoss())
        texts.push_back(GetDlgItemText(IDC_LOSS_EDIT));
    for (const CString& text : texts) {
        for (;;) {
            const CExpressionCheck check(VariableNames(), parameters, CNonLinearData::LossNames());
            const CExpressionCheck::Result result = check.Check(text, false);
            if (result.problem != CExpressionCheck::Problem::UnknownName ||
                !CExpressionCheck::IsParameterName(result.name))
                break;
            parameters.push_back(result.name);
            const int row = grid.InsertRow(grid.GetRowCount());
            grid.SetItemText(row, kName, result.name);
        }
    }
}

void CNonLinearDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool loss = UsesLoss();
    for (const UINT id : {IDC_LOSS_LABEL, IDC_LOSS_EDIT}) {
        ShowCtrl(id, loss);
        EnableCtrl(id, loss);
    }
}

void CNonLinearDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_DEPENDENT_LIST).ResetOptions();
    UpdateDependentWindows();
}
