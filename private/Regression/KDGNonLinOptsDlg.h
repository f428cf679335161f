// CNonLinOptsDlg: the estimation page of the nonlinear regressions
// (template 7640): the method, the iterations, the convergence criterion,
// the step halvings (Gauss-Newton and Marquardt only) and the confidence.
// A convergence criterion of 0 is refused: the iterations would never
// stop by it.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGNonLinOptsData.h"

class CNonLinOptsDlg : public CGUIPageDlg<CNonLinOptsData>, public CNonLinOptsDlgIds {
    DECLARE_DYNAMIC(CNonLinOptsDlg)
public:
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CNonLinOptsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGNonLinOptsDlg"; }

protected:
    void OnMethod() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()
};
