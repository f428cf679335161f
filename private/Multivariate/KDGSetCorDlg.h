// CSetCorDlg: the set correlation page (template 6680). The user moves
// numeric variables to set Y and set X, and optionally to the sets
// partialled from each, and checks the tests.
//
// Rules of the page: both sets need a variable; a variable belongs to one
// of the four sets only; at least one test is asked for.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGSetCorData.h"

class CSetCorDlg : public CGUIPageDlg<CSetCorData>, public CSetCorDlgIds {
    DECLARE_DYNAMIC(CSetCorDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_SET_Y = 6980, ID_MENU_PARTIAL_Y = 6981, ID_MENU_SET_X = 6982, ID_MENU_PARTIAL_X = 6983 };
    static constexpr UINT kMsgEmptySet = 6507;
    static constexpr UINT kMsgTwoSets = 6508;
    static constexpr UINT kMsgNoTest = 6509;

    explicit CSetCorDlg(CWnd* parent = nullptr);

    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGSetCorDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    // The first list, in page order, that shares a variable with a list
    // before it; 0 when every variable is in one set.
    UINT SharedSet() const;
};
