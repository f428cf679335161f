#include "private/Regression/KDGRankOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CRankOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRankOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRankOptionsDlg::IDC_SAVE_CHECK, &CRankOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

CRankOptionsDlg::CRankOptionsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CRankOptionsDlg::OnInitDialog()
{
    for (const auto& [control, list] : {std::pair{IDC_SCORES_COMBO, CRankOptionsData::kScoresCombo},
                                        std::pair{IDC_WEIGHTS_COMBO, CRankOptionsData::kWeightsCombo}}) {
        if (CComboBox* combo = GetComboBoxWnd(control))
            CComboUtil::FillCombo(list, *combo, 0);
        else
            ReportAssertion(__LINE__);
    }
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CRankOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool weighted = m_pData && m_pData->IsWeighted();
    for (const UINT id : {IDC_WEIGHTS_LABEL, IDC_WEIGHTS_COMBO}) {
        ShowCtrl(id, weighted);
        EnableCtrl(id, weighted);
    }
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CRankOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
