// CMixedTestDlg: the test page of the mixed model's hypothesis test
// (template 8220). OK refuses a D matrix that is not a matrix of numbers or
// whose rows are not as many as the rows of the hypothesis.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGMixedTestData.h"

class CMixedTestDlg : public CGUIPageDlg<CMixedTestData>, public CMixedTestDlgIds {
    DECLARE_DYNAMIC(CMixedTestDlg)
public:
    explicit CMixedTestDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "Source/KDGMixedTestDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
