// CLogitCategoriesDlg: the categories page (template 2700). Its source list
// shows the independent variables the model page holds now; the user
// declares some of them categorical and chooses their coding. String
// variables stay categorical: their removal is refused, and they come back
// when the page follows the model page again.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLogitCategoriesData.h"

class CLogitCategoriesDlg : public CGUIPageDlg<CLogitCategoriesData>, public CLogitCategoriesDlgIds {
    DECLARE_DYNAMIC(CLogitCategoriesDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_CATEGORY = 33041 };

    explicit CLogitCategoriesDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    // Follows the model page's independent variables first.
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitCategoriesDlg"; }

protected:
    void OnCodingRadio();

    DECLARE_MESSAGE_MAP()

private:
    void FollowModelPage();
};
