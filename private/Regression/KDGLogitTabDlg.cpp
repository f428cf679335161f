#include "private/Regression/KDGLogitTabDlg.h"

#include "framework/HostLink.h"

IMPLEMENT_DYNAMIC(CLogitTabDlg, CGUITabDlg)

CLogitTabDlg::CLogitTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_LogitDlg);
    AddPage(m_CategoriesDlg);
    AddPage(m_SetsDlg);
    AddPage(m_OptsDlg);
    AddPage(m_DecilesDlg);
}

BOOL CLogitTabDlg::OnInitDialog()
{
    CGUIDataDlg::OnInitDialog();
    // Each page was created before the pages after it: now that all exist,
    // the rules that look at a later page run again.
    OnPageChanged(nullptr);
    return TRUE;
}

CString CLogitTabDlg::GetUnavailableReason(CGUIBaseDlg& page)
{
    if (&page == &m_DecilesDlg && m_SetsDlg.IsChoiceSetsChecked())
        return kal::framework::LoadResourceString(kDecilesNeedBinaryResponse);
    return CGUITabDlg::GetUnavailableReason(page);
}

int CLogitTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    return m_pData->SetAll(CLogitTabData::GetDefaultLogit(), CLogitTabData::GetDefaultLogitCategories(),
                           CLogitTabData::GetDefaultLogitSets(), CLogitTabData::GetDefaultLogitOpts(),
                           CLogitTabData::GetDefaultLogitDeciles());
}

void CLogitTabDlg::OnOK()
{
    CGUIDataDlg::OnOK();
    // The pages' window states are set now.
    if (IsRunFlagSet() && m_pData)
        m_pData->GetLogitSetsData()->ApplyTo(*m_pData->GetLogitData());
}
