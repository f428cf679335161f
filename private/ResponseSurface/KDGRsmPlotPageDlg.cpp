#include "private/ResponseSurface/KDGRsmPlotPageDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/ResponseSurface/KDGRsmFactorsDlg.h"
#include "private/ResponseSurface/KDGRsmGrid.h"

#include <algorithm>
#include <cmath>

IMPLEMENT_DYNAMIC(CRsmPlotPageDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CRsmPlotPageDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CRsmPlotPageDlg::OnReset)
END_MESSAGE_MAP()

CRsmPlotPageDlg::CRsmPlotPageDlg(CWnd* parent) : CGUIPageDlg(IDD, parent, IDC_HELD_GRID) {}

BOOL CRsmPlotPageDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRsmPlotPageData::kDrawRadio);
    GetGrid().SetColumnWidth(colNumber, GetGrid().GetColumnWidth(colName) / 2);
    UpdateDependentWindows();
    return TRUE;
}

std::vector<CString> CRsmPlotPageDlg::FactorNames() const
{
    CGUITabDlg* tab = GetTabDlg();
    auto* factors = tab ? tab->FindPage<CRsmFactorsDlg>() : nullptr;
    return factors ? factors->FactorNames() : std::vector<CString>{};
}

CString CRsmPlotPageDlg::ChosenAxis(UINT combo) const
{
    const CComboBox* box = GetComboBoxWnd(combo);
    if (!box || box->GetCurSel() < 0)
        return {};
    return box->GetLBText(box->GetCurSel());
}

void CRsmPlotPageDlg::FillAxis(UINT combo, const CString& keep, const CString& avoid, const std::vector<CString>& names)
{
    CComboBox* box = GetComboBoxWnd(combo);
    if (!box) {
        ReportAssertion(__LINE__);
        return;
    }
    box->ResetContent();
    for (const CString& name : names)
        box->AddString(name);
    auto chosen = std::find(names.begin(), names.end(), keep);
    if (chosen == names.end())
        chosen = std::find_if(names.begin(), names.end(), [&avoid](const CString& name) { return name != avoid; });
    box->SetCurSel(chosen == names.end() ? -1 : static_cast<int>(chosen - names.begin()));
}

void CRsmPlotPageDlg::SyncFactors()
{
    const std::vector<CString> names = FactorNames();
    const CString x = ChosenAxis(IDC_X_COMBO);
    FillAxis(IDC_X_COMBO, x, CString(), names);
    FillAxis(IDC_Y_COMBO, ChosenAxis(IDC_Y_COMBO), ChosenAxis(IDC_X_COMBO), names);
    kal::rsm::ShowRows(GetGrid(), names, kal::rsm::ShownRows(GetGrid()));
}

void CRsmPlotPageDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    CRsmPlotPageData& w = m_Work;
    if (!pDX->m_bSaveAndValidate) {
        std::vector<std::pair<CString, kal::rsm::RowTexts>> rows;
        for (int i = 0; i < w.m_HeldNames.GetSize() && i < w.m_HeldValues.GetSize(); ++i)
            rows.emplace_back(w.m_HeldNames[i], kal::rsm::RowTexts{kal::rsm::CellText(w.m_HeldValues[i])});
        const std::vector<CString> names = FactorNames();
        FillAxis(IDC_X_COMBO, w.m_XFactor, CString(), names);
        FillAxis(IDC_Y_COMBO, w.m_YFactor, ChosenAxis(IDC_X_COMBO), names);
        kal::rsm::ShowRows(GetGrid(), names, rows);
        return;
    }
    w.m_XFactor = ChosenAxis(IDC_X_COMBO);
    w.m_YFactor = ChosenAxis(IDC_Y_COMBO);
    w.m_HeldNames.RemoveAll();
    w.m_HeldValues.RemoveAll();
    const CGridCtrl& grid = GetGrid();
    UINT unread = 0;
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        const CString name = grid.GetItemText(row, colName);
        double value = 0;
        // The axes vary: whatever their rows hold is not read.
        const bool axis = name == w.m_XFactor || name == w.m_YFactor;
        if (!kal::rsm::ReadCell(axis ? CString() : grid.GetItemText(row, colValue), value) && unread == 0)
            unread = kMsgHeldValue;
        w.m_HeldNames.Add(name);
        w.m_HeldValues.Add(value);
    }
    DDX_ControlWarn(pDX, IDC_HELD_GRID, unread);
    const bool axes = !w.m_XFactor.IsEmpty() && !w.m_YFactor.IsEmpty() && w.m_XFactor != w.m_YFactor;
    DDX_ControlWarn(pDX, IDC_Y_COMBO, axes ? 0 : kMsgSameAxes);
}

void CRsmPlotPageDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    SyncFactors();
}

void CRsmPlotPageDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
