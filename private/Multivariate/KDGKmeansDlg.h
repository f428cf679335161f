// CKmeansDlg: the first page of the k-means clustering dialog (template
// 6600). The user moves numeric variables to the variables clustered and
// gives the number of clusters, the distance and whether to standardize.
//
// Rules of the page: the Minkowski power is edited while that distance is
// chosen; a variable is needed, and no more clusters than the data sheet
// has cases.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGKmeansData.h"

class CKmeansDlg : public CGUIPageDlg<CKmeansData>, public CKmeansDlgIds {
    DECLARE_DYNAMIC(CKmeansDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_VARIABLES = 6992 };
    static constexpr UINT kMsgNoVariable = 6502;
    static constexpr UINT kMsgTooManyClusters = 6503;

    explicit CKmeansDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGKmeansDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
