#include "private/Anova/KDGRepeatMeasuresDlg.h"

#include "framework/GUITabDlg.h"
#include "private/Anova/KDGAnovaDlg.h"

#include <charconv>

IMPLEMENT_DYNAMIC(CRepeatMeasuresDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CRepeatMeasuresDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(CRepeatMeasuresDlg::IDC_ON_OFF, &CRepeatMeasuresDlg::OnOnOffCheck)
END_MESSAGE_MAP()

CRepeatMeasuresDlg::CRepeatMeasuresDlg(CWnd* parent) : CGUIDataDlg(IDD, parent, IDC_GRID) {}

BOOL CRepeatMeasuresDlg::OnInitDialog()
{
    CGUIDataDlg::OnInitDialog();
    // The row-number column needs half the room of the others.
    GetGrid().SetColumnWidth(colNumber, GetGrid().GetColumnWidth(colName) / 2);
    return TRUE;
}

void CRepeatMeasuresDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIDataDlg::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_ON_OFF, m_OnOff);
    if (!pDX->m_bSaveAndValidate)
        FillGridFromData();
    DDX_ControlWarn(pDX, IDC_GRID, pDX->m_bSaveAndValidate ? ValidateLevels() : 0);
}

int CRepeatMeasuresDlg::GetAll()
{
    return m_pData ? m_pData->GetAll(m_OnOff, m_arrStrName, m_arrLevels, m_arrStrMetric) : 0;
}

int CRepeatMeasuresDlg::SetAll()
{
    return m_pData ? m_pData->SetAll(m_OnOff, m_arrStrName, m_arrLevels, m_arrStrMetric) : 0;
}

int CRepeatMeasuresDlg::GetAllDefault()
{
    m_OnOff = CRepeatMeasuresData::GetDefaultMeasureAnalysisOnOffCheck();
    CRepeatMeasuresData::GetDefaultName(m_arrStrName);
    CRepeatMeasuresData::GetDefaultLevels(m_arrLevels);
    CRepeatMeasuresData::GetDefaultMetric(m_arrStrMetric);
    return 1;
}

int CRepeatMeasuresDlg::SetAllDefault()
{
    if (m_pData)
        *m_pData = CRepeatMeasuresData();
    return 1;
}

int CRepeatMeasuresDlg::OKLike()
{
    FillDataFromGrid();
    return CGUIDataDlg::OKLike();
}

void CRepeatMeasuresDlg::UpdateDependentWindows()
{
    const bool on = IsDlgButtonChecked(IDC_ON_OFF) != 0;
    EnableCtrl(IDC_GRID, on);
    EnableCtrl(IDC_INSERT_ROW, on);
    EnableCtrl(IDC_DELETE_ROW, on);
}

void CRepeatMeasuresDlg::OnOnOffCheck()
{
    UpdateDependentWindows();
}

BOOL CRepeatMeasuresDlg::IsWindowEnabled()
{
    return GetDependentVariableCount() >= 2;
}

int CRepeatMeasuresDlg::GetDependentVariableCount() const
{
    const UINT owner = GetDlgCaptionID();
    if (owner != 2263 && owner != 2264 && owner != 2265)
        return 0;
    const auto* tabDialog = dynamic_cast<const CGUITabDlg*>(GetParent());
    if (!tabDialog || tabDialog->GetPages().empty())
        return 0;
    const auto* modelPage = dynamic_cast<const CAnovaDlg*>(tabDialog->GetPages().front());
    return modelPage ? modelPage->GetDependentListCount() : 0;
}

UINT CRepeatMeasuresDlg::ValidateLevels()
{
    if (!m_OnOff || !IsWindowEnabled())
        return 0;
    const int dependents = GetDependentVariableCount();
    if (m_arrLevels.GetSize() == 1)
        return m_arrLevels[0] == dependents ? 0 : kMsgSingleLevel;
    long long product = 1;
    for (const int levels : m_arrLevels) {
        if (levels < 2 || levels > dependents)
            return kMsgLevelRange;
        product *= levels;
    }
    return product == dependents ? 0 : kMsgLevelProduct;
}

void CRepeatMeasuresDlg::FillGridFromData()
{
    CGridCtrl& grid = GetGrid();
    const int rows = std::max({m_arrStrName.GetSize(), m_arrLevels.GetSize(), m_arrStrMetric.GetSize()});
    grid.SetRowCount(rows + 1);
    for (int i = 0; i < rows; ++i) {
        grid.SetItemText(i + 1, colName, i < m_arrStrName.GetSize() ? m_arrStrName[i] : CString());
        grid.SetItemText(i + 1, colLevels, i < m_arrLevels.GetSize() ? CString::FromNumber(m_arrLevels[i]) : CString());
        grid.SetItemText(i + 1, colMetric, i < m_arrStrMetric.GetSize() ? m_arrStrMetric[i] : CString());
    }
}

void CRepeatMeasuresDlg::FillDataFromGrid()
{
    const CGridCtrl& grid = GetGrid();
    m_arrStrName.RemoveAll();
    m_arrLevels.RemoveAll();
    m_arrStrMetric.RemoveAll();
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        CString name = grid.GetItemText(row, colName);
        CString levelsText = grid.GetItemText(row, colLevels);
        CString metric = grid.GetItemText(row, colMetric);
        if (CString(name).Trim().IsEmpty() && CString(levelsText).Trim().IsEmpty() && CString(metric).Trim().IsEmpty())
            continue; // a row the user left empty
        const std::string digits = levelsText.Trim().ToUtf8();
        int levels = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), levels);
        if (error != std::errc() || end != digits.data() + digits.size())
            levels = 0; // not a number: the level check refuses it
        m_arrStrName.Add(name.Trim());
        m_arrLevels.Add(levels);
        m_arrStrMetric.Add(metric.Trim());
    }
}
