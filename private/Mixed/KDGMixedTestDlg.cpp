#include "private/Mixed/KDGMixedTestDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Anova/KDGHypothesisDlg.h"
#include "private/Anova/KDGMatrixText.h"

IMPLEMENT_DYNAMIC(CMixedTestDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMixedTestDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CMixedTestDlg::OnReset)
END_MESSAGE_MAP()

BOOL CMixedTestDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CMixedTestData::kDdfRadio);
    return TRUE;
}

void CMixedTestDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_DMATRIX, CHypothesisDlg::MatrixProblem(m_Work.m_DMatrix));
    CGUITabDlg* tab = GetTabDlg();
    const auto* hypothesis = tab ? tab->FindPage<CHypothesisDlg>() : nullptr;
    const int rows = hypothesis ? hypothesis->HypothesisRowCount() : -1;
    const auto d = CMatrixText::Parse(m_Work.m_DMatrix);
    const bool mismatch = !d.empty() && rows >= 0 && static_cast<int>(d.size()) != rows;
    DDX_ControlWarn(pDX, IDC_DMATRIX, mismatch ? CHypothesisErrorDlg::kMsgDMatrixRows : 0);
}
