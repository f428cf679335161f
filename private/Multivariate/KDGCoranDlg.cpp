#include "private/Multivariate/KDGCoranDlg.h"

#include <set>

IMPLEMENT_DYNAMIC(CCoranDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CCoranDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CCoranDlg::OnReset)
END_MESSAGE_MAP()

CCoranDlg::CCoranDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_ROW_LIST,
                 .add = IDC_ADD_ROW,
                 .remove = IDC_REMOVE_ROW,
                 .menuCommand = ID_MENU_ROWS,
                 .menuLabel = IDC_ROW_LABEL});
    AddRoleList({.list = IDC_COLUMN_LIST,
                 .add = IDC_ADD_COLUMN,
                 .remove = IDC_REMOVE_COLUMN,
                 .menuCommand = ID_MENU_COLUMNS,
                 .menuLabel = IDC_COLUMN_LABEL});
    AddRoleList({.list = IDC_SUPPLEMENTARY_LIST,
                 .add = IDC_ADD_SUPPLEMENTARY,
                 .remove = IDC_REMOVE_SUPPLEMENTARY,
                 .menuCommand = ID_MENU_SUPPLEMENTARY,
                 .menuLabel = IDC_SUPPLEMENTARY_LABEL});
    AddRoleList({.list = IDC_WEIGHT_LIST,
                 .add = IDC_ADD_WEIGHT,
                 .remove = IDC_REMOVE_WEIGHT,
                 .menuCommand = ID_MENU_WEIGHT,
                 .menuLabel = IDC_WEIGHT_LABEL,
                 .acceptsStrings = [] { return false; },
                 .maxItems = 1});
}

UINT CCoranDlg::SharedRole() const
{
    std::set<std::u16string> seen;
    const std::pair<const CGUIArray<CGUIDataVariable>*, UINT> roles[] = {
        {&m_Work.m_RowList, IDC_ROW_LIST},
        {&m_Work.m_ColumnList, IDC_COLUMN_LIST},
        {&m_Work.m_SupplementaryList, IDC_SUPPLEMENTARY_LIST},
    };
    for (const auto& [list, control] : roles) {
        for (const auto& variable : *list)
            if (seen.count(variable.GetVariableName().Str()))
                return control;
        for (const auto& variable : *list)
            seen.insert(variable.GetVariableName().Str());
    }
    return 0;
}

void CCoranDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_ROW_LIST, m_Work.m_RowList.IsEmpty() ? kMsgNoTable : 0);
    DDX_ControlWarn(pDX, IDC_COLUMN_LIST, m_Work.m_ColumnList.IsEmpty() ? kMsgNoTable : 0);
    if (const UINT shared = SharedRole())
        DDX_ControlWarn(pDX, shared, kMsgTwoRoles);
}

void CCoranDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_ROW_LIST, IDC_COLUMN_LIST, IDC_SUPPLEMENTARY_LIST, IDC_WEIGHT_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
