#include "framework/KVGridMultiCtrlBaseDlg.h"

IMPLEMENT_DYNAMIC(CKVGridMultiCtrlBaseDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CKVGridMultiCtrlBaseDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CKVGridMultiCtrlBaseDlg::IDC_INSERT_ROW, &CKVGridMultiCtrlBaseDlg::OnInsertRow)
    ON_BN_CLICKED(CKVGridMultiCtrlBaseDlg::IDC_DELETE_ROW, &CKVGridMultiCtrlBaseDlg::OnDeleteRow)
END_MESSAGE_MAP()

CKVGridMultiCtrlBaseDlg::CKVGridMultiCtrlBaseDlg(UINT templateId, CWnd* parent, UINT gridId)
    : CGUIBaseDlg(templateId, parent), m_nGridId(gridId)
{
}

void CKVGridMultiCtrlBaseDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIBaseDlg::DoDataExchange(pDX);
    DDX_Control(pDX, m_nGridId, m_Grid);
}

void CKVGridMultiCtrlBaseDlg::OnInsertRow()
{
    const int focus = m_Grid.GetFocusRow();
    const int row = m_Grid.InsertRow(focus >= 1 ? focus : m_Grid.GetRowCount());
    m_Grid.SetFocusRow(row);
}

void CKVGridMultiCtrlBaseDlg::OnDeleteRow()
{
    const int focus = m_Grid.GetFocusRow();
    m_Grid.DeleteRow(focus >= 1 ? focus : m_Grid.GetRowCount() - 1);
}
