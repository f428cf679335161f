// CHlmLevelsDlg: the levels page of the hierarchical linear mixed model
// (template 8140). Numeric variables go to the dependent, level-1,
// level-2 and random-slope lists, any variable to the level-2 unit.
//
// OK refuses a missing dependent variable or unit, a variable in two roles,
// a random slope that is not a level-1 predictor, a model without a random
// part, and cross-level terms without both a random slope and a level-2
// predictor.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGHlmLevelsData.h"

class CHlmLevelsDlg : public CGUIPageDlg<CHlmLevelsData>, public CHlmLevelsDlgIds {
    DECLARE_DYNAMIC(CHlmLevelsDlg)
public:
    enum : UINT {
        ID_MENU_DEPENDENT = 33111,
        ID_MENU_UNIT = 33112,
        ID_MENU_LEVEL1 = 33113,
        ID_MENU_LEVEL2 = 33114,
        ID_MENU_SLOPE = 33115
    };
    static constexpr UINT kMsgNoDependent = 8405;
    static constexpr UINT kMsgNoUnit = 8406;
    static constexpr UINT kMsgTwoRoles = 8407;
    static constexpr UINT kMsgSlopeNotLevel1 = 8408;
    static constexpr UINT kMsgCrossLevel = 8417;

    explicit CHlmLevelsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGHlmLevelsDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    // The message refusing the page's entries and the control it names.
    std::pair<UINT, UINT> Validate() const;
};
