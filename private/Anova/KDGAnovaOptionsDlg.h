// CAnovaOptionsDlg: the options page (template 2007): normality tests, the
// Levene test and the type of sums of squares. At OK it records which of
// its controls were enabled; the settings write a value only then.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Anova/KDGAnovaOptionsData.h"

class CAnovaOptionsDlg : public CGUIPageDlg<CAnovaOptionsData>, public CAnovaOptionsDlgIds {
    DECLARE_DYNAMIC(CAnovaOptionsDlg)
public:
    // The owner whose page offers neither the Levene test nor a choice of
    // sums of squares.
    static constexpr UINT kOwnerWithoutLeveneAndSs = 2260;

    explicit CAnovaOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    int OKLike() override;
    const char* GetSourceFile() const override { return "Source/KDGAnovaOptionsDlg"; }
};
