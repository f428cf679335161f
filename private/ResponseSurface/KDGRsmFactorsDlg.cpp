#include "private/ResponseSurface/KDGRsmFactorsDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/ResponseSurface/KDGRsmGrid.h"

#include <cmath>

IMPLEMENT_DYNAMIC(CRsmFactorsDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CRsmFactorsDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(CRsmFactorsDlg::IDC_UNCODED_RADIO, &CRsmFactorsDlg::OnRuleChange)
    ON_BN_CLICKED(CRsmFactorsDlg::IDC_CODED_RADIO, &CRsmFactorsDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CRsmFactorsDlg::OnReset)
END_MESSAGE_MAP()

namespace {

bool Shares(const CGUIArray<CGUIDataVariable>& a, const CGUIArray<CGUIDataVariable>& b)
{
    for (const CGUIDataVariable& variable : a)
        if (CGUIBaseObj::CheckStringPresentinListCtrlArray(b, variable.GetVariableName()))
            return true;
    return false;
}

} // namespace

CRsmFactorsDlg::CRsmFactorsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent, IDC_RANGE_GRID)
{
    SetSourceList(IDC_SOURCE_LIST);
    const auto numeric = [] { return false; };
    AddRoleList({.list = IDC_RESPONSE_LIST,
                 .add = IDC_ADD_RESPONSE,
                 .remove = IDC_REMOVE_RESPONSE,
                 .menuCommand = ID_MENU_RESPONSE,
                 .menuLabel = IDC_RESPONSE_LABEL,
                 .acceptsStrings = numeric,
                 .afterMove = [this] { NotifyTab(); }});
    AddRoleList({.list = IDC_FACTOR_LIST,
                 .add = IDC_ADD_FACTOR,
                 .remove = IDC_REMOVE_FACTOR,
                 .menuCommand = ID_MENU_FACTOR,
                 .menuLabel = IDC_FACTOR_LABEL,
                 .acceptsStrings = numeric,
                 .afterMove =
                     [this] {
                         SyncRanges();
                         NotifyTab();
                     },
                 .maxItems = kMaxFactors});
    AddRoleList({.list = IDC_BLOCK_LIST,
                 .add = IDC_ADD_BLOCK,
                 .remove = IDC_REMOVE_BLOCK,
                 .menuCommand = ID_MENU_BLOCK,
                 .menuLabel = IDC_BLOCK_LABEL,
                 .enabled = [this] { return IsEstimation(); },
                 .maxItems = 1});
}

BOOL CRsmFactorsDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRsmFactorsData::kUnitsRadio);
    GetGrid().SetColumnWidth(colNumber, GetGrid().GetColumnWidth(colName) / 2);
    UpdateDependentWindows();
    return TRUE;
}

namespace {

std::vector<CString> NamesOf(const CGUIListCtrl& list)
{
    std::vector<CString> names;
    for (const CGUIDataVariable& variable : list.GetVariables())
        names.push_back(variable.GetVariableName());
    return names;
}

} // namespace

std::vector<CString> CRsmFactorsDlg::ResponseNames()
{
    return NamesOf(ListCtrl(IDC_RESPONSE_LIST));
}

std::vector<CString> CRsmFactorsDlg::FactorNames()
{
    return NamesOf(ListCtrl(IDC_FACTOR_LIST));
}

void CRsmFactorsDlg::SyncRanges()
{
    kal::rsm::ShowRows(GetGrid(), FactorNames(), kal::rsm::ShownRows(GetGrid()));
}

UINT CRsmFactorsDlg::ReadRanges()
{
    const CGridCtrl& grid = GetGrid();
    UINT message = 0;
    m_Work.m_LowList.RemoveAll();
    m_Work.m_HighList.RemoveAll();
    for (int i = 0; i < m_Work.m_FactorList.GetSize(); ++i) {
        for (const int column : {colLow, colHigh}) {
            const CString text = i + 1 < grid.GetRowCount() ? grid.GetItemText(i + 1, column) : CString();
            double value = 0;
            if (!kal::rsm::ReadCell(text, value) && message == 0)
                message = kMsgRangeNotANumber;
            (column == colLow ? m_Work.m_LowList : m_Work.m_HighList).Add(value);
        }
    }
    return message;
}

UINT CRsmFactorsDlg::ValidateRanges() const
{
    // The working copy is the page's own: the analysis is the settings'.
    const bool needed =
        CRsmFactorsData::NeedsRanges(m_pData ? m_pData->GetKind() : RsmKind::Estimate, m_Work.IsCoded());
    for (int i = 0; i < m_Work.m_FactorList.GetSize(); ++i) {
        const double low = m_Work.GetLow(i);
        const double high = m_Work.GetHigh(i);
        if (std::isnan(low) || std::isnan(high)) {
            if (needed)
                return kMsgRangeMissing;
            continue;
        }
        if (!(low < high))
            return kMsgRangeOrder;
    }
    return 0;
}

void CRsmFactorsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate) {
        std::vector<CString> names;
        std::vector<std::pair<CString, kal::rsm::RowTexts>> rows;
        for (int i = 0; i < m_Work.m_FactorList.GetSize(); ++i) {
            names.push_back(m_Work.m_FactorList[i].GetVariableName());
            rows.emplace_back(names.back(), kal::rsm::RowTexts{kal::rsm::CellText(m_Work.GetLow(i)),
                                                               kal::rsm::CellText(m_Work.GetHigh(i))});
        }
        kal::rsm::ShowRows(GetGrid(), names, rows);
        return;
    }
    const CRsmFactorsData& w = m_Work;
    DDX_ControlWarn(pDX, IDC_RESPONSE_LIST, w.m_ResponseList.IsEmpty() ? kMsgNoResponse : 0);
    DDX_ControlWarn(pDX, IDC_FACTOR_LIST, w.m_FactorList.GetSize() < 2 ? kMsgTooFewFactors : 0);
    const bool twoRoles =
        Shares(w.m_ResponseList, w.m_FactorList) ||
        (IsEstimation() && (Shares(w.m_BlockList, w.m_FactorList) || Shares(w.m_BlockList, w.m_ResponseList)));
    DDX_ControlWarn(pDX, IDC_FACTOR_LIST, twoRoles ? kMsgTwoRoles : 0);
    const UINT read = ReadRanges();
    DDX_ControlWarn(pDX, IDC_RANGE_GRID, read ? read : ValidateRanges());
}

void CRsmFactorsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool estimation = IsEstimation();
    for (const UINT id : {IDC_BLOCK_LABEL, IDC_BLOCK_LIST, IDC_ADD_BLOCK, IDC_REMOVE_BLOCK}) {
        ShowCtrl(id, estimation);
        if (!estimation)
            EnableCtrl(id, FALSE);
    }
}

void CRsmFactorsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CRsmFactorsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT id : {IDC_RESPONSE_LIST, IDC_FACTOR_LIST, IDC_BLOCK_LIST})
        ListCtrl(id).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
