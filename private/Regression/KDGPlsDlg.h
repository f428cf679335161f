// CPlsDlg: the page of partial least squares regression (template 7850).
// The user moves numeric responses and predictors from the source list,
// fixes the number of components or lets cross-validation choose up to
// that many, chooses the scaling and may save the scores. The folds are
// enabled with cross-validation, the file with the save check.
//
// Checked at OK: at least one response and one predictor; no more
// components than predictors; a save file while saving.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGPlsData.h"

class CPlsDlg : public CGUIPageDlg<CPlsData>, public CPlsDlgIds {
    DECLARE_DYNAMIC(CPlsDlg)
public:
    enum : UINT { ID_MENU_RESPONSE = 33001, ID_MENU_PREDICTOR = 33002 };
    static constexpr UINT kMsgNoResponse = 7880;
    static constexpr UINT kMsgNoPredictor = 7881;
    static constexpr UINT kMsgTooManyComponents = 7883;

    explicit CPlsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGPlsDlg"; }

protected:
    void OnChoice() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()
};
