#include "private/Regression/KDGLogitQuantilesDlg.h"

#include "framework/ResourceUtil.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CLogitQuantilesDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitQuantilesDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CLogitQuantilesDlg::OnReset)
END_MESSAGE_MAP()

CLogitQuantilesDlg::CLogitQuantilesDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_BY_LIST,
                 .add = IDC_ADD_BY,
                 .remove = IDC_REMOVE_BY,
                 .menuCommand = ID_MENU_BY,
                 .menuLabel = IDC_BY_LABEL,
                 .maxItems = kMaxByVariables});
}

BOOL CLogitQuantilesDlg::OnInitDialog()
{
    m_Model = CLastLogitModel::Read();
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CLogitQuantilesData::kScaleRadio);
    SetDlgItemText(IDC_MODEL_TEXT, m_Model.Describe());
    return TRUE;
}

void CLogitQuantilesDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_GROUPS_EDIT, m_Model.IsEstimated() ? 0 : CLastLogitModel::kMsgNoModel);
    // Groups formed by a regressor or by the response say nothing new.
    const auto inModel = [this](const CGUIDataVariable& variable) {
        const CString& name = variable.GetVariableName();
        const auto& regressors = m_Model.GetRegressors();
        return name == m_Model.GetDependent() ||
               std::find(regressors.begin(), regressors.end(), name) != regressors.end();
    };
    const bool clash = std::any_of(m_Work.m_ByList.begin(), m_Work.m_ByList.end(), inModel);
    DDX_ControlWarn(pDX, IDC_BY_LIST, clash ? kMsgGroupInModel : 0);
}

void CLogitQuantilesDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_BY_LIST).ResetOptions();
    UpdateDependentWindows();
}
