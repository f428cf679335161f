// CTreesOptionsDlg: the options page of the trees dialog (template 6740).
//
// Rules of the page: the split rules of the kind of tree the model page
// asks for are in use, the other kind's are not; the number of folds is
// edited while pruning is checked.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGTreesOptionsData.h"

class CTreesOptionsDlg : public CGUIPageDlg<CTreesOptionsData>, public CTreesOptionsDlgIds {
    DECLARE_DYNAMIC(CTreesOptionsDlg)
public:
    explicit CTreesOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGTreesOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
