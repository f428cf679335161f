#include "private/Regression/KDGLogitSimulateDlg.h"

IMPLEMENT_DYNAMIC(CLogitSimulateDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CLogitSimulateDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CLogitSimulateDlg::OnReset)
END_MESSAGE_MAP()

BOOL CLogitSimulateDlg::OnInitDialog()
{
    m_Model = CLastLogitModel::Read();
    CGUIPageDlg::OnInitDialog();
    SetDlgItemText(IDC_MODEL_TEXT, m_Model.Describe());
    GetGrid().SetColumnWidth(0, GetGrid().GetColumnWidth(1) / 6);
    return TRUE;
}

void CLogitSimulateDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    CGridCtrl& grid = GetGrid();
    if (!pDX->m_bSaveAndValidate) {
        grid.SetRowCount(m_Work.m_Scenarios.GetSize() + 1);
        for (int i = 0; i < m_Work.m_Scenarios.GetSize(); ++i)
            grid.SetItemText(i + 1, 1, m_Work.m_Scenarios[i]);
        return;
    }
    DDX_ControlWarn(pDX, IDC_DRAWS_EDIT, m_Model.IsEstimated() ? 0 : CLastLogitModel::kMsgNoModel);
    m_Work.m_Scenarios.RemoveAll();
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        CString text = grid.GetItemText(row, 1);
        if (text.Trim().IsEmpty())
            continue;
        const UINT problem = m_Model.ReadValues(text);
        if (problem != 0)
            grid.SetFocusRow(row);
        DDX_ControlWarn(pDX, IDC_GRID, problem);
        m_Work.m_Scenarios.Add(text);
    }
}
