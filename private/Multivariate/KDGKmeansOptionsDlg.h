// CKmeansOptionsDlg: the options page of the k-means clustering dialog
// (template 6620).
//
// Rules of the page:
//  - the variable of the groups (one numeric variable) is chosen while the
//    first centers come from it, and then it is needed; the seed is edited
//    for random first centers;
//  - the file and the distances are in use while saving is checked;
//  - convergence lies above 0.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGKmeansOptionsData.h"

class CKmeansOptionsDlg : public CGUIPageDlg<CKmeansOptionsData>, public CKmeansOptionsDlgIds {
    DECLARE_DYNAMIC(CKmeansOptionsDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_GROUPS = 6993 };
    static constexpr UINT kMsgNoGroupVariable = 6504;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CKmeansOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGKmeansOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    bool GroupsChosen() const { return IsDlgButtonChecked(IDC_GROUPS_RADIO) != 0; }
};
