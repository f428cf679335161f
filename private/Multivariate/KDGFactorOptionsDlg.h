// CFactorOptionsDlg: the factors page of the factor analysis dialog
// (template 6520).
//
// Rules of the page:
//  - the minimum eigenvalue or the number of factors is edited, as the
//    criterion chosen says; there are at most as many factors as variables
//    on the model page;
//  - the parameter is edited for oblimin and orthomax, and choosing one of
//    them puts its usual value in the edit; oblimin takes 0 to 1;
//  - iterations and convergence are edited while the model page's
//    extraction iterates or a rotation is chosen; convergence lies above 0.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGFactorOptionsData.h"

class CFactorOptionsDlg : public CGUIPageDlg<CFactorOptionsData>, public CFactorOptionsDlgIds {
    DECLARE_DYNAMIC(CFactorOptionsDlg)
public:
    static constexpr UINT kMsgTooManyFactors = 6501;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CFactorOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGFactorOptionsDlg"; }

protected:
    void OnRuleChange();
    void OnRotationChange();

    DECLARE_MESSAGE_MAP()

private:
    UINT CheckedRotation() const;
};
