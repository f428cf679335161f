// CMixRegDataDlg: the data-structure page of mixed regression (template
// 8320). The layout decides which controls are in use: the time variable
// for the long layout; the occasion variables, their times and the save
// file for the wide one. Numeric variables go to the time and occasion
// lists, any variable to the id.
//
// OK refuses a missing id, a long layout without a time variable, a wide
// layout with fewer than two occasions or with times that are not one
// number per occasion, and a variable in two roles.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGMixRegDataData.h"

class CMixRegDataDlg : public CGUIPageDlg<CMixRegDataData>, public CMixRegDataDlgIds {
    DECLARE_DYNAMIC(CMixRegDataDlg)
public:
    enum : UINT { ID_MENU_ID = 33141, ID_MENU_TIME = 33142, ID_MENU_REPEATED = 33143 };
    static constexpr UINT kMsgNoId = 8413;
    static constexpr UINT kMsgNoTime = 8414;
    static constexpr UINT kMsgTooFewOccasions = 8415;
    static constexpr UINT kMsgTimes = 8416;

    explicit CMixRegDataDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGMixRegDataDlg"; }

protected:
    void OnRuleChange() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()

private:
    bool IsWideShown() const { return IsDlgButtonChecked(IDC_WIDE_RADIO) != 0; }
    std::pair<UINT, UINT> Validate() const;
};
