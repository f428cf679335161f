// CManovaBetweenDlg: the between-subjects MANOVA dialog (template 6000).
// The user moves variables to the dependent, factor and covariate lists,
// picks the multivariate statistics and a contrast of the factors' levels.
//
// Rules of the dialog:
//  - the dependent variables and covariates are numeric; factors may be
//    any variable;
//  - missing values form a category only while there are factors;
//  - OK needs two or more dependent variables, a factor and a statistic.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGManovaBetweenData.h"

class CManovaBetweenDlg : public CGUIPageDlg<CManovaBetweenData>, public CManovaBetweenDlgIds {
    DECLARE_DYNAMIC(CManovaBetweenDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_FACTOR = 33002, ID_MENU_COVARIATE = 33003 };
    static constexpr UINT kMsgTwoDependents = 6400;
    static constexpr UINT kMsgNoFactor = 6401;

    explicit CManovaBetweenDlg(CWnd* parent = nullptr);

    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGManovaBetweenDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
