// CCoranDlg: the model page of the correspondence analysis dialog (template
// 6640). The user moves the variables whose categories form the rows and
// the columns of the table (any type), variables shown as supplementary
// points, and at most one numeric frequency weight.
//
// Rules of the page: a table needs a row and a column variable, and a
// variable plays one role only among rows, columns and supplementary
// points.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGCoranData.h"

class CCoranDlg : public CGUIPageDlg<CCoranData>, public CCoranDlgIds {
    DECLARE_DYNAMIC(CCoranDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_ROWS = 6994, ID_MENU_COLUMNS = 6995, ID_MENU_SUPPLEMENTARY = 6996, ID_MENU_WEIGHT = 6997 };
    static constexpr UINT kMsgNoTable = 6505;
    static constexpr UINT kMsgTwoRoles = 6506;

    explicit CCoranDlg(CWnd* parent = nullptr);

    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGCoranDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    // The first list, in page order, that shares a variable with a list
    // before it; 0 when every variable has one role.
    UINT SharedRole() const;
};
