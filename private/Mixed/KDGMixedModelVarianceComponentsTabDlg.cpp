#include "private/Mixed/KDGMixedModelVarianceComponentsTabDlg.h"

IMPLEMENT_SERIAL(CMixedModelVarianceComponentsTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CMixedModelVarianceComponentsTabDlg, CGUITabDlg)

CMixedModelVarianceComponentsTabDlg::CMixedModelVarianceComponentsTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_VarCompDlg);
}

int CMixedModelVarianceComponentsTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetVarCompData() = CMixedModelVarianceComponentsTabData::GetDefaultVarComp();
    return 1;
}
