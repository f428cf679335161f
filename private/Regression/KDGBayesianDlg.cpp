#include "private/Regression/KDGBayesianDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CBayesianDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CBayesianDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CBayesianDlg::IDC_FLAT_RADIO, &CBayesianDlg::OnChoice)
    ON_BN_CLICKED(CBayesianDlg::IDC_NORMAL_RADIO, &CBayesianDlg::OnChoice)
    ON_BN_CLICKED(CBayesianDlg::IDC_JEFFREYS_RADIO, &CBayesianDlg::OnChoice)
    ON_BN_CLICKED(CBayesianDlg::IDC_IGAMMA_RADIO, &CBayesianDlg::OnChoice)
    ON_BN_CLICKED(IDC_RESET, &CBayesianDlg::OnReset)
END_MESSAGE_MAP()

CBayesianDlg::CBayesianDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = noStrings,
                 .maxItems = 1});
    AddRoleList({.list = IDC_INDEPENDENT_LIST,
                 .add = IDC_ADD_INDEPENDENT,
                 .remove = IDC_REMOVE_INDEPENDENT,
                 .menuCommand = ID_MENU_INDEPENDENT,
                 .menuLabel = IDC_INDEPENDENT_LABEL,
                 .acceptsStrings = noStrings});
}

BOOL CBayesianDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CBayesianData::kCoefficientPriorRadio);
    CRadioUtil::FillRadio(this, CBayesianData::kVariancePriorRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CBayesianDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_DEPENDENT_LIST, m_Work.m_DependentList.IsEmpty() ? kMsgNoDependent : 0);
    const bool twice = !m_Work.m_DependentList.IsEmpty() &&
                       CGUIBaseObj::CheckStringPresentinListCtrlArray(m_Work.m_IndependentList,
                                                                      m_Work.m_DependentList[0].GetVariableName());
    DDX_ControlWarn(pDX, IDC_INDEPENDENT_LIST, twice ? kMsgDependentIsIndependent : 0);
    DDX_ControlWarn(pDX, IDC_INDEPENDENT_LIST,
                    !m_Work.m_ConstantCheck && m_Work.m_IndependentList.IsEmpty() ? kMsgEmptyModel : 0);
    // A prior's spread and the inverse gamma's parameters are positive.
    const NumberRule positive = NumberRule::Positive();
    if (m_Work.IsNormalPrior())
        DDX_ControlWarn(pDX, IDC_VARIANCE_EDIT, m_Work.m_PriorVarianceEdit.m_Value > 0 ? 0 : kMsgOutOfRange, positive);
    if (m_Work.IsInverseGammaPrior()) {
        DDX_ControlWarn(pDX, IDC_SHAPE_EDIT, m_Work.m_ShapeEdit.m_Value > 0 ? 0 : kMsgOutOfRange, positive);
        DDX_ControlWarn(pDX, IDC_SCALE_EDIT, m_Work.m_ScaleEdit.m_Value > 0 ? 0 : kMsgOutOfRange, positive);
    }
    DDX_ControlWarn(pDX, IDC_BURNIN_EDIT, m_Work.m_BurnInEdit.m_Value < m_Work.m_DrawsEdit.m_Value ? 0 : kMsgBurnIn);
}

void CBayesianDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool normal = IsDlgButtonChecked(IDC_NORMAL_RADIO) != 0;
    for (const UINT id : {IDC_MEAN_LABEL, IDC_MEAN_EDIT, IDC_VARIANCE_LABEL, IDC_VARIANCE_EDIT})
        EnableCtrl(id, normal);
    const bool gamma = IsDlgButtonChecked(IDC_IGAMMA_RADIO) != 0;
    for (const UINT id : {IDC_SHAPE_LABEL, IDC_SHAPE_EDIT, IDC_SCALE_LABEL, IDC_SCALE_EDIT})
        EnableCtrl(id, gamma);
}

void CBayesianDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_DEPENDENT_LIST).ResetOptions();
    ListCtrl(IDC_INDEPENDENT_LIST).ResetOptions();
    UpdateDependentWindows();
}
