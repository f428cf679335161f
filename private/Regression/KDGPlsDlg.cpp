#include "private/Regression/KDGPlsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CPlsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CPlsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CPlsDlg::IDC_FIXED_RADIO, &CPlsDlg::OnChoice)
    ON_BN_CLICKED(CPlsDlg::IDC_CV_RADIO, &CPlsDlg::OnChoice)
    ON_BN_CLICKED(CPlsDlg::IDC_SAVE_CHECK, &CPlsDlg::OnChoice)
    ON_BN_CLICKED(IDC_RESET, &CPlsDlg::OnReset)
END_MESSAGE_MAP()

CPlsDlg::CPlsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_RESPONSE_LIST,
                 .add = IDC_ADD_RESPONSE,
                 .remove = IDC_REMOVE_RESPONSE,
                 .menuCommand = ID_MENU_RESPONSE,
                 .menuLabel = IDC_RESPONSE_LABEL,
                 .acceptsStrings = noStrings});
    AddRoleList({.list = IDC_PREDICTOR_LIST,
                 .add = IDC_ADD_PREDICTOR,
                 .remove = IDC_REMOVE_PREDICTOR,
                 .menuCommand = ID_MENU_PREDICTOR,
                 .menuLabel = IDC_PREDICTOR_LABEL,
                 .acceptsStrings = noStrings});
}

BOOL CPlsDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CPlsData::kComponentsRadio);
    CRadioUtil::FillRadio(this, CPlsData::kScaleRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CPlsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_RESPONSE_LIST, m_Work.m_ResponseList.IsEmpty() ? kMsgNoResponse : 0);
    DDX_ControlWarn(pDX, IDC_PREDICTOR_LIST, m_Work.m_PredictorList.IsEmpty() ? kMsgNoPredictor : 0);
    // Each component is a combination of the predictors: there are at most
    // as many as predictors.
    DDX_ControlWarn(pDX, IDC_COMPONENTS_EDIT,
                    m_Work.m_ComponentsEdit.m_Value > m_Work.m_PredictorList.GetSize() ? kMsgTooManyComponents : 0);
}

void CPlsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool cv = IsDlgButtonChecked(IDC_CV_RADIO) != 0;
    EnableCtrl(IDC_FOLDS_LABEL, cv);
    EnableCtrl(IDC_FOLDS_EDIT, cv);
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK) != 0);
}

void CPlsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_RESPONSE_LIST).ResetOptions();
    ListCtrl(IDC_PREDICTOR_LIST).ResetOptions();
    UpdateDependentWindows();
}
