// CQcTestsDlg: the run-tests page of the control charts (template 3977).
// "Perform all run tests" checks or clears the eight tests at once, and it
// is checked exactly while all eight are.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGQcTestsData.h"

#include <array>

class CQcTestsDlg : public CGUIPageDlg<CQcTestsData>, public CQcTestsDlgIds {
    DECLARE_DYNAMIC(CQcTestsDlg)
public:
    // The checks of tests 1 to 8.
    static constexpr std::array<UINT, 8> kTests = {IDC_TEST1, IDC_TEST2, IDC_TEST3, IDC_TEST4,
                                                   IDC_TEST5, IDC_TEST6, IDC_TEST7, IDC_TEST8};

    explicit CQcTestsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGQcTestsDlg"; }

protected:
    void OnPerformAllCheck();
    void OnTestCheck();

    DECLARE_MESSAGE_MAP()
};
