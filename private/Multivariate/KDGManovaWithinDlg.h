// CManovaWithinDlg: the within-subjects MANOVA dialog (template 6200). The
// user moves the repeated measures to the dependent list in level order,
// may add between factors, defines the within-subjects factors in the grid
// (a row each: name, levels, metric), and picks the sphericity corrections
// and the multivariate statistics.
//
// OK checks the factors as the repeated-measures page does: one factor has
// as many levels as there are dependent variables, several multiply to
// that number; metrics list one number per level; names are distinct.
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/Multivariate/KDGManovaWithinData.h"

class CManovaWithinDlg : public CGUIPageDlg<CManovaWithinData, CKVGridMultiCtrlBaseDlg>, public CManovaWithinDlgIds {
    DECLARE_DYNAMIC(CManovaWithinDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_FACTOR = 33002 };
    static constexpr UINT kMsgTwoDependents = 6400;
    static constexpr UINT kMsgNoWithinFactor = 6420;

    explicit CManovaWithinDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    int OKLike() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGManovaWithinDlg"; }

private:
    UINT ValidateFactors() const;
};
