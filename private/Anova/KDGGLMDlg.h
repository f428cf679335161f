// CGLMDlg: the model page of the general linear model (template 2120). The
// user moves variables to the dependent and categorical lists and builds
// the model's terms from the variables selected in the source list: main
// effects, interactions, nested and polynomial terms, a full factorial.
// The page also holds the constant, the number of cases behind matrix data
// and the save file.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Anova/KDGGLMData.h"

#include <vector>

class CGLMDlg : public CGUIPageDlg<CGLMData>, public CGLMDlgIds {
    DECLARE_DYNAMIC(CGLMDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_CATEGORY = 33002 };
    static constexpr UINT kMsgUnknownTermVariable = 2101;

    explicit CGLMDlg(CWnd* parent = nullptr);

    // What the page shows now (read by the tab dialog).
    int GetDependentListCount() { return ListCtrl(IDC_DEPENDENT_LIST).GetItemCount(); }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGGLMDlg"; }

protected:
    void OnAddMainEffects();
    void OnAddInteraction();
    void OnNest();
    void OnAddPolynomial();
    void OnFullFactorial();
    void OnRemoveTerm();
    void OnSaveCheck();

    DECLARE_MESSAGE_MAP()

private:
    CListCtrl& TermList() const;
    std::vector<CString> SelectedSourceNames();
    bool SelectionIsNumeric();
    // The list shows `terms`, those added before them keeping their place.
    void AddTerms(const std::vector<CString>& terms);
    void ShowTerms(const CGUIArray<CString>& terms);
    CGUIArray<CString> ShownTerms() const;
    // Whether the estimation page asks for a mixture model, which has no
    // constant.
    bool IsMixtureModel() const;
};
