#include "private/Regression/KDGLogitPostDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CLogitPostDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitPostDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CLogitPostDlg::IDC_PREDICT_CHECK, &CLogitPostDlg::OnCheck)
    ON_BN_CLICKED(CLogitPostDlg::IDC_MARGINS_CHECK, &CLogitPostDlg::OnCheck)
    ON_BN_CLICKED(CLogitPostDlg::IDC_CLASSIFY_CHECK, &CLogitPostDlg::OnCheck)
    ON_BN_CLICKED(IDC_RESET, &CLogitPostDlg::OnReset)
END_MESSAGE_MAP()

BOOL CLogitPostDlg::OnInitDialog()
{
    m_Model = CLastLogitModel::Read();
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CLogitPostData::kMarginsRadio);
    SetDlgItemText(IDC_MODEL_TEXT, m_Model.Describe());
    UpdateDependentWindows();
    return TRUE;
}

void CLogitPostDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_PREDICT_CHECK, m_Model.IsEstimated() ? 0 : CLastLogitModel::kMsgNoModel);
    const bool any = m_Work.m_PredictCheck || m_Work.m_MarginsCheck || m_Work.m_ClassifyCheck;
    DDX_ControlWarn(pDX, IDC_PREDICT_CHECK, any ? 0 : kMsgNothingChosen);
    if (m_Work.m_PredictCheck)
        DDX_ControlWarn(pDX, IDC_AT_EDIT, m_Model.ReadValues(m_Work.m_AtEdit));
    const double cut = m_Work.m_CutEdit.m_Value;
    DDX_ControlWarn(pDX, IDC_CUT_EDIT, !m_Work.m_ClassifyCheck || (cut > 0 && cut < 1) ? 0 : kMsgCutOff);
}

void CLogitPostDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool predict = IsDlgButtonChecked(IDC_PREDICT_CHECK) != 0;
    EnableCtrl(IDC_AT_LABEL, predict);
    EnableCtrl(IDC_AT_EDIT, predict);
    const bool margins = IsDlgButtonChecked(IDC_MARGINS_CHECK) != 0;
    EnableCtrl(IDC_ATMEANS_RADIO, margins);
    EnableCtrl(IDC_AVERAGE_RADIO, margins);
    const bool classify = IsDlgButtonChecked(IDC_CLASSIFY_CHECK) != 0;
    EnableCtrl(IDC_CUT_LABEL, classify);
    EnableCtrl(IDC_CUT_EDIT, classify);
}

void CLogitPostDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
