// CVarCompDlg: the page of variance components (template 8180). Numeric
// variables go to the dependent and covariate lists, any variable to the
// random and fixed factors. The sums of squares belong to the ANOVA
// method, the iteration limit and convergence to ML and REML.
//
// OK refuses a missing dependent variable, no random factor, a variable in
// two roles, a full factorial of more than ten factors and a convergence
// criterion that is not strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGVarCompData.h"

class CVarCompDlg : public CGUIPageDlg<CVarCompData>, public CVarCompDlgIds {
    DECLARE_DYNAMIC(CVarCompDlg)
public:
    enum : UINT { ID_MENU_DEPENDENT = 33121, ID_MENU_RANDOM = 33122, ID_MENU_FIXED = 33123, ID_MENU_COVARIATE = 33124 };
    static constexpr UINT kMsgNoRandomFactor = 8409;
    static constexpr UINT kMsgTooManyFactors = 8410;

    explicit CVarCompDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGVarCompDlg"; }

protected:
    void OnMethodChange() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()

private:
    std::pair<UINT, UINT> Validate() const;
};
