#include "private/Mixed/KDGMixedDataTabDlg.h"

IMPLEMENT_SERIAL(CMixedDataTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CMixedDataTabDlg, CGUITabDlg)

CMixedDataTabDlg::CMixedDataTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_StructureDlg);
}

int CMixedDataTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetStructureData() = CMixedDataTabData::GetDefaultStructure();
    return 1;
}
