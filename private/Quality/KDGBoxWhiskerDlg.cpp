#include "private/Quality/KDGBoxWhiskerDlg.h"

IMPLEMENT_DYNAMIC(CBoxWhiskerDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CBoxWhiskerDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CBoxWhiskerDlg::OnReset)
END_MESSAGE_MAP()
