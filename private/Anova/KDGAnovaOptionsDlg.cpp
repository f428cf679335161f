#include "private/Anova/KDGAnovaOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CAnovaOptionsDlg, CGUIBaseDlg)

BOOL CAnovaOptionsDlg::OnInitDialog()
{
    CGUIBaseDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CAnovaOptionsData::kSsTypeRadio);
    if (GetDlgCaptionID() == kOwnerWithoutLeveneAndSs) {
        for (const UINT id : {IDC_HOMOGENEITY_GROUP, IDC_SS_GROUP, IDC_SS_LABEL})
            ShowCtrl(id, FALSE);
        // Hidden and disabled: the Levene test and the type are never
        // written for this owner.
        for (const UINT id : {IDC_LEVENE, IDC_SS_TYPE1, IDC_SS_TYPE2, IDC_SS_TYPE3}) {
            EnableCtrl(id, FALSE);
            ShowCtrl(id, FALSE);
        }
    }
    return TRUE;
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
