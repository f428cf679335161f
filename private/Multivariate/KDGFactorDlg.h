// CFactorDlg: the model page of the factor analysis dialog (template 6500).
// The user moves numeric variables to the variables factored, and chooses
// the extraction, the matrix factored and what to save.
//
// Rules of the page:
//  - the number of cases is edited with matrix data only; a matrix has no
//    cases to score, so saving is offered with ordinary data only;
//  - the save list and file are in use while saving is checked;
//  - at least two variables are factored; the factors page reads how many
//    there are and whether the extraction iterates.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGFactorData.h"

class CFactorDlg : public CGUIPageDlg<CFactorData>, public CFactorDlgIds {
    DECLARE_DYNAMIC(CFactorDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_VARIABLES = 6990 };
    static constexpr UINT kMsgTooFewVariables = 6500;

    explicit CFactorDlg(CWnd* parent = nullptr);

    int GetVariableCount() { return ListCtrl(IDC_VARIABLE_LIST).GetItemCount(); }
    // Whether the extraction checked now iterates.
    bool IsIterative() const;

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGFactorDlg"; }

protected:
    void OnRuleChange();
    void OnExtractionChange();

    DECLARE_MESSAGE_MAP()
};
