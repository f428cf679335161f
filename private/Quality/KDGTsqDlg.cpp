#include "private/Quality/KDGTsqDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGMatrixText.h"
#include "private/Quality/KDGControlLimits.h"

#include <cmath>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CTsqDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CTsqDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CTsqDlg::IDC_ESTIMATED_RADIO, &CTsqDlg::OnRuleChange)
    ON_BN_CLICKED(CTsqDlg::IDC_KNOWN_RADIO, &CTsqDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CTsqDlg::OnReset)
END_MESSAGE_MAP()

namespace {

// A cell that CMatrixText::Check found to be a number, with the decimal
// comma the host may take.
double CellValue(CString cell)
{
    cell.Replace(u",", u".");
    return std::strtod(cell.ToUtf8().c_str(), nullptr);
}

} // namespace

CTsqDlg::CTsqDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_MEASURE_LIST,
                 .add = IDC_ADD_MEASURE,
                 .remove = IDC_REMOVE_MEASURE,
                 .menuCommand = ID_MENU_MEASURE,
                 .menuLabel = IDC_MEASURE_LABEL,
                 .acceptsStrings = [] { return false; }});
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUP,
                 .menuLabel = IDC_GROUP_LABEL});
}

BOOL CTsqDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CTsqData::kSourceRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CTsqDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_MEASURE_LIST, m_Work.m_MeasureVariables.GetSize() < 2 ? kMsgTooFewMeasurements : 0);
    if (IsDlgButtonChecked(IDC_KNOWN_RADIO)) {
        DDX_ControlWarn(pDX, IDC_MEAN_EDIT, ValidateMean());
        DDX_ControlWarn(pDX, IDC_COVAR_EDIT, ValidateCovariance());
    }
    DDX_ControlWarn(pDX, IDC_PLIMITS_UPPER,
                    kal::quality::LimitsOrder(m_Work.m_PLimitsLowerEdit, m_Work.m_PLimitsUpperEdit, kMsgLimitsOrder));
}

UINT CTsqDlg::ValidateMean() const
{
    const CMatrixText::Rows rows = CMatrixText::Parse(m_Work.m_MeanEdit);
    if (CMatrixText::Check(rows) == CMatrixText::Problem::NotANumber)
        return kMsgNotANumber;
    const auto k = static_cast<std::size_t>(m_Work.m_MeasureVariables.GetSize());
    return rows.size() == 1 && rows.front().size() == k ? 0 : kMsgMeanSize;
}

UINT CTsqDlg::ValidateCovariance() const
{
    const CMatrixText::Rows rows = CMatrixText::Parse(m_Work.m_CovarianceEdit);
    const CMatrixText::Problem problem = CMatrixText::Check(rows);
    if (problem == CMatrixText::Problem::NotANumber)
        return kMsgNotANumber;
    const auto k = static_cast<std::size_t>(m_Work.m_MeasureVariables.GetSize());
    if (problem != CMatrixText::Problem::None || rows.size() != k || rows.front().size() != k)
        return kMsgCovarianceSize;
    for (std::size_t i = 0; i < k; ++i) {
        if (!(CellValue(rows[i][i]) > 0))
            return kMsgNotACovariance;
        for (std::size_t j = i + 1; j < k; ++j) {
            const double a = CellValue(rows[i][j]);
            const double b = CellValue(rows[j][i]);
            // As typed, the two halves agree to the digits given.
            if (std::fabs(a - b) > 1e-9 * std::fmax(std::fabs(a), std::fabs(b)))
                return kMsgNotACovariance;
        }
    }
    return 0;
}

void CTsqDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool known = IsDlgButtonChecked(IDC_KNOWN_RADIO) != 0;
    for (const UINT id : {IDC_MEAN_LABEL, IDC_MEAN_EDIT, IDC_COVAR_LABEL, IDC_COVAR_EDIT})
        EnableCtrl(id, known);
}

void CTsqDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CTsqDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_MEASURE_LIST).ResetOptions();
    ListCtrl(IDC_GROUP_LIST).ResetOptions();
    UpdateDependentWindows();
}
