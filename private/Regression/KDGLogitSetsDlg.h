// CLogitSetsDlg: the choice-sets page (template 2720). "Use choice sets"
// turns the model into a discrete choice model; the user then moves the
// set variables into their list and says what they hold. The page tells
// its tab when the check changes: the model page's confidence, the
// estimation method and the deciles page depend on it.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLogitSetsData.h"

class CLogitSetsDlg : public CGUIPageDlg<CLogitSetsData>, public CLogitSetsDlgIds {
    DECLARE_DYNAMIC(CLogitSetsDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_SET = 33051 };
    // The fewest set variables a choice needs.
    static constexpr int kMinSetVariables = 2;
    static constexpr UINT kMsgTooFewSetVariables = 2770;

    explicit CLogitSetsDlg(CWnd* parent = nullptr);

    // Whether "use choice sets" is checked (before the page exists: in its
    // settings).
    BOOL IsChoiceSetsChecked() const;

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitSetsDlg"; }

protected:
    void OnUseSetsCheck();

    DECLARE_MESSAGE_MAP()
};
