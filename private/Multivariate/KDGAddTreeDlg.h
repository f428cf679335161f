// CAddTreeDlg: the additive trees dialog (template 6780). The user moves
// three or more numeric variables to the objects of the tree and chooses
// what their dissimilarities are, the kind of tree and the output of the
// fitted distances.
//
// Rules of the dialog:
//  - with matrix data the sheet's entries are dissimilarities or
//    similarities; with ordinary data they are distances between the
//    variables, and the distance (with the Minkowski power) is chosen;
//  - the save file is in use while saving is checked.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGAddTreeData.h"

class CAddTreeDlg : public CGUIPageDlg<CAddTreeData>, public CAddTreeDlgIds {
    DECLARE_DYNAMIC(CAddTreeDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_OBJECTS = 6986 };
    static constexpr UINT kMsgTooFewObjects = 6513;

    explicit CAddTreeDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGAddTreeDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
