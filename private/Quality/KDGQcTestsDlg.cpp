#include "private/Quality/KDGQcTestsDlg.h"

IMPLEMENT_DYNAMIC(CQcTestsDlg, CGUIBaseDlg)

// The tests' ids run from 3978 to 3986 around the perform-all check 3984,
// whose own entry comes first.
BEGIN_MESSAGE_MAP(CQcTestsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CQcTestsDlg::IDC_PERFORM_ALL, &CQcTestsDlg::OnPerformAllCheck)
    ON_COMMAND_RANGE(CQcTestsDlg::IDC_TEST8, CQcTestsDlg::IDC_TEST5, &CQcTestsDlg::OnTestCheck)
END_MESSAGE_MAP()

static_assert(CQcTestsDlg::IDC_TEST8 < CQcTestsDlg::IDC_PERFORM_ALL &&
                  CQcTestsDlg::IDC_PERFORM_ALL < CQcTestsDlg::IDC_TEST5,
              "the tests' range holds the perform-all check");

void CQcTestsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    bool all = true;
    for (const UINT test : kTests)
        all = all && IsDlgButtonChecked(test) != 0;
    CheckDlgButton(IDC_PERFORM_ALL, all ? BST_CHECKED : BST_UNCHECKED);
}

void CQcTestsDlg::OnPerformAllCheck()
{
    const UINT state = IsDlgButtonChecked(IDC_PERFORM_ALL) ? BST_CHECKED : BST_UNCHECKED;
    for (const UINT test : kTests)
        CheckDlgButton(test, state);
    UpdateDependentWindows();
}

void CQcTestsDlg::OnTestCheck()
{
    UpdateDependentWindows();
}
