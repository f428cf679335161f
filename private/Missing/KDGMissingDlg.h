// CMissingDlg: the variables page of the missing-value analysis (template
// 8500). The user moves two or more numeric variables to the list analysed
// and, optionally, one grouping variable; asks for the patterns table and
// the share of cases below which patterns are pooled; and may save the data
// with the gaps filled.
//
// Rules of the page:
//  - the cutoff is edited while the patterns table is asked for, the save
//    kind and file while saving is;
//  - OK needs two variables, and a grouping variable that is not one of them.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Missing/KDGMissingData.h"

class CMissingDlg : public CGUIPageDlg<CMissingData>, public CMissingDlgIds {
    DECLARE_DYNAMIC(CMissingDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_VARIABLE = 8591, ID_MENU_GROUP = 8592 };
    static constexpr UINT kMsgTooFewVariables = 8580;
    static constexpr UINT kMsgGroupAnalysed = 8581;

    explicit CMissingDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGMissingDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
