#include "private/Regression/KDGSmoothDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CSmoothDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CSmoothDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CSmoothDlg::IDC_LOWESS_RADIO, &CSmoothDlg::OnChoice)
    ON_BN_CLICKED(CSmoothDlg::IDC_SPLINE_RADIO, &CSmoothDlg::OnChoice)
    ON_BN_CLICKED(CSmoothDlg::IDC_KERNEL_RADIO, &CSmoothDlg::OnChoice)
    ON_BN_CLICKED(CSmoothDlg::IDC_SAVE_CHECK, &CSmoothDlg::OnChoice)
    ON_BN_CLICKED(IDC_RESET, &CSmoothDlg::OnReset)
END_MESSAGE_MAP()

CSmoothDlg::CSmoothDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_RESPONSE_LIST,
                 .add = IDC_ADD_RESPONSE,
                 .remove = IDC_REMOVE_RESPONSE,
                 .menuCommand = ID_MENU_RESPONSE,
                 .menuLabel = IDC_RESPONSE_LABEL,
                 .acceptsStrings = noStrings,
                 .maxItems = 1});
    AddRoleList({.list = IDC_PREDICTOR_LIST,
                 .add = IDC_ADD_PREDICTOR,
                 .remove = IDC_REMOVE_PREDICTOR,
                 .menuCommand = ID_MENU_PREDICTOR,
                 .menuLabel = IDC_PREDICTOR_LABEL,
                 .acceptsStrings = noStrings,
                 .maxItems = 1});
}

BOOL CSmoothDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_KERNEL_COMBO))
        CComboUtil::FillCombo(CSmoothData::kKernelCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CSmoothData::kSmootherRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CSmoothDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, m_Work.m_ResponseList.IsEmpty() ? IDC_RESPONSE_LIST : IDC_PREDICTOR_LIST,
                    m_Work.m_ResponseList.IsEmpty() || m_Work.m_PredictorList.IsEmpty() ? kMsgRoles : 0);
    // A span of 0 would smooth over no neighbours at all.
    if (IsCtrlInUse(IDC_SPAN_EDIT))
        DDX_ControlWarn(pDX, IDC_SPAN_EDIT, m_Work.m_SpanEdit.m_Value > 0 ? 0 : kMsgSpan);
}

void CSmoothDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool spline = IsDlgButtonChecked(IDC_SPLINE_RADIO) != 0;
    const bool kernel = IsDlgButtonChecked(IDC_KERNEL_RADIO) != 0;
    const bool lowess = !spline && !kernel;
    EnableCtrl(IDC_SPAN_LABEL, !spline);
    EnableCtrl(IDC_SPAN_EDIT, !spline);
    EnableCtrl(IDC_DF_LABEL, spline);
    EnableCtrl(IDC_DF_EDIT, spline);
    EnableCtrl(IDC_ITERATIONS_LABEL, lowess);
    EnableCtrl(IDC_ITERATIONS_EDIT, lowess);
    EnableCtrl(IDC_KERNEL_LABEL, kernel);
    EnableCtrl(IDC_KERNEL_COMBO, kernel);
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK) != 0);
}

void CSmoothDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_RESPONSE_LIST).ResetOptions();
    ListCtrl(IDC_PREDICTOR_LIST).ResetOptions();
    UpdateDependentWindows();
}
