#include "private/Multivariate/KDGManovaWithinDlg.h"

#include "private/Anova/KDGRepeatMeasuresDlg.h"

IMPLEMENT_DYNAMIC(CManovaWithinDlg, CKVGridMultiCtrlBaseDlg)

CManovaWithinDlg::CManovaWithinDlg(CWnd* parent) : CGUIPageDlg(IDD, parent, IDC_GRID)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = [] { return false; }});
    AddRoleList({.list = IDC_FACTOR_LIST,
                 .add = IDC_ADD_FACTOR,
                 .remove = IDC_REMOVE_FACTOR,
                 .menuCommand = ID_MENU_FACTOR,
                 .menuLabel = IDC_FACTOR_LABEL});
}

BOOL CManovaWithinDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    // The row-number column needs half the room of the others.
    GetGrid().SetColumnWidth(CRepeatMeasuresDlg::colNumber, GetGrid().GetColumnWidth(CRepeatMeasuresDlg::colName) / 2);
    return TRUE;
}

void CManovaWithinDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate) {
        CRepeatMeasuresDlg::FillGrid(GetGrid(), m_Work.m_arrStrName, m_Work.m_arrLevels, m_Work.m_arrStrMetric);
        return;
    }
    DDX_ControlWarn(pDX, IDC_DEPENDENT_LIST, m_Work.m_DependentList.GetSize() < 2 ? kMsgTwoDependents : 0);
    DDX_ControlWarn(pDX, IDC_GRID, ValidateFactors());
    DDX_ControlWarn(pDX, IDC_WILKS, m_Work.GetStatistics().Any() ? 0 : kal::manova::kMsgNoStatistic);
}

UINT CManovaWithinDlg::ValidateFactors() const
{
    if (m_Work.m_arrLevels.IsEmpty())
        return kMsgNoWithinFactor;
    if (const UINT levels = CRepeatMeasuresDlg::LevelsProblem(m_Work.m_arrLevels, m_Work.m_DependentList.GetSize()))
        return levels;
    return CRepeatMeasuresDlg::NamesAndMetricsProblem(m_Work.m_arrStrName, m_Work.m_arrLevels, m_Work.m_arrStrMetric);
}

int CManovaWithinDlg::OKLike()
{
    CRepeatMeasuresDlg::ReadGrid(GetGrid(), m_Work.m_arrStrName, m_Work.m_arrLevels, m_Work.m_arrStrMetric);
    return CGUIPageDlg::OKLike();
}

void CManovaWithinDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_FACTOR_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
