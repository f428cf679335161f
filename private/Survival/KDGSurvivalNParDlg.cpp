#include "private/Survival/KDGSurvivalNParDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Survival/KDGSurvivalDlg.h"
#include "private/Survival/KDGSurvivalOptionsDlg.h"

IMPLEMENT_DYNAMIC(CSurvivalNParDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CSurvivalNParDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CSurvivalNParDlg::IDC_KM_RADIO, &CSurvivalNParDlg::OnRuleChange)
    ON_BN_CLICKED(CSurvivalNParDlg::IDC_LTAB_RADIO, &CSurvivalNParDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CSurvivalNParDlg::OnReset)
END_MESSAGE_MAP()

CSurvivalNParDlg::CSurvivalNParDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CSurvivalNParDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CSurvivalNParData::kEstimatesRadio);
    UpdateDependentWindows();
    return TRUE;
}

bool CSurvivalNParDlg::ModelHasStrata() const
{
    CGUITabDlg* tab = GetTabDlg();
    auto* model = tab ? tab->FindPage<CSurvivalDlg>() : nullptr;
    return model && model->HasStrata();
}

void CSurvivalNParDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_CONFIDENCE_EDIT,
                    RefuseUnlessInsideUnit(m_Work.m_ConfidenceEdit.m_Value, CSurvivalNParData::kMsgConfidence));
}

void CSurvivalNParDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool lifeTable = IsDlgButtonChecked(IDC_LTAB_RADIO) != 0;
    EnableCtrl(IDC_WIDTH_LABEL, lifeTable);
    EnableCtrl(IDC_WIDTH_EDIT, lifeTable);
    const bool strata = ModelHasStrata();
    for (const UINT id : {IDC_TESTS_GROUP, IDC_LOGRANK_CHECK, IDC_BRESLOW_CHECK, IDC_TARONE_CHECK, IDC_PETO_CHECK})
        EnableCtrl(id, strata);
}

void CSurvivalNParDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CSurvivalNParDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
