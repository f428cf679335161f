// CParetoDlg: the Pareto chart dialog (template 9000). The user moves the
// variable whose categories are the bars (string or numeric) and,
// optionally, a numeric count variable; and chooses the cumulative line,
// the pooling of small categories with its share, and the percent axis.
//
// Rules of the dialog: each list holds one variable; the share is edited
// while pooling is checked, and lies above 0 and at most at 50 percent; a
// chart needs its category variable.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGParetoData.h"

class CParetoDlg : public CGUIPageDlg<CParetoData>, public CParetoDlgIds {
    DECLARE_DYNAMIC(CParetoDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_CATEGORY = 9090, ID_MENU_COUNT = 9091 };
    static constexpr UINT kMsgNoCategory = 9020;

    explicit CParetoDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGParetoDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
