// CAnovaOptionsDlg: the options page (template 2007): normality tests, the
// Levene test and the type of sums of squares. At OK it records which of
// its controls were enabled; the settings write a value only then.
#pragma once

#include "framework/GUIDataDlg.h"
#include "private/Anova/KDGAnovaOptionsData.h"

class CAnovaOptionsDlg : public CGUIDataDlg<CAnovaOptionsData> {
    DECLARE_DYNAMIC(CAnovaOptionsDlg)
public:
    enum : UINT {
        IDD = 2007,
        IDC_KS = 1080,
        IDC_AD = 1077,
        IDC_SW = 1087,
        IDC_LEVENE = 1081,
        IDC_SS_TYPE1 = 1084, // radio group: 1084, 1085, 1086
        IDC_SS_TYPE2 = 1085,
        IDC_SS_TYPE3 = 1086,
        IDC_HOMOGENEITY_GROUP = 1078,
        IDC_SS_GROUP = 1079,
        IDC_SS_LABEL = 1083,
    };
    // The owner whose page offers neither the Levene test nor a choice of
    // sums of squares.
    static constexpr UINT kOwnerWithoutLeveneAndSs = 2260;

    explicit CAnovaOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    int GetAll() override;
    int SetAll() override;
    int GetAllDefault() override;
    int SetAllDefault() override;
    int OKLike() override;
    const char* GetSourceFile() const override { return "Source/KDGAnovaOptionsDlg"; }

private:
    int m_KsCheck = 0;
    int m_AdCheck = 0;
    int m_SwCheck = 0;
    int m_LeveneCheck = 0;
    int m_SsTypeRadio = 0;
};
