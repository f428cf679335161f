// CKVGridMultiCtrlBaseDlg: a page built around one grid, with buttons that
// insert a row before the focus row (or at the end) and delete the focus
// row (or the last one).
#pragma once

#include "framework/GUIBaseDlg.h"

class CKVGridMultiCtrlBaseDlg : public CGUIBaseDlg {
    DECLARE_DYNAMIC(CKVGridMultiCtrlBaseDlg)
public:
    static constexpr UINT IDC_INSERT_ROW = 28;
    static constexpr UINT IDC_DELETE_ROW = 29;

    CKVGridMultiCtrlBaseDlg(UINT templateId, CWnd* parent, UINT gridId);

    CGridCtrl& GetGrid() { return m_Grid; }
    UINT GetGridId() const { return m_nGridId; }
    int GetDataRowCount() const { return std::max(0, m_Grid.GetRowCount() - 1); }

    void DoDataExchange(CDataExchange* pDX) override;

protected:
    void OnInsertRow();
    void OnDeleteRow();

    DECLARE_MESSAGE_MAP()

private:
    UINT m_nGridId;
    CGridCtrl m_Grid;
};
