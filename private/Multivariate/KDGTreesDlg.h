// CTreesDlg: the model page of the classification and regression trees
// dialog (template 6720). The user moves one response and the predictors
// (any type) and chooses the kind of tree and what to save.
//
// Rules of the page:
//  - a response and a predictor are needed, and the response is not also a
//    predictor; a string response is classified;
//  - the save list and file are in use while saving is checked; the options
//    page offers the split rules of the kind of tree chosen.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGTreesData.h"

class CTreesDlg : public CGUIPageDlg<CTreesData>, public CTreesDlgIds {
    DECLARE_DYNAMIC(CTreesDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_RESPONSE = 6984, ID_MENU_PREDICTORS = 6985 };
    static constexpr UINT kMsgNoPredictor = 6502;
    static constexpr UINT kMsgNoResponse = 6510;
    static constexpr UINT kMsgResponseIsPredictor = 6511;
    static constexpr UINT kMsgStringResponse = 6512;

    explicit CTreesDlg(CWnd* parent = nullptr);

    // Whether the page asks for a classification tree now.
    bool IsClassification() const { return IsDlgButtonChecked(IDC_CLASSIFICATION_RADIO) != 0; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGTreesDlg"; }

protected:
    void OnRuleChange();
    void OnKindChange();

    DECLARE_MESSAGE_MAP()
};
