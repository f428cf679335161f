// CSmoothDlg: the page of the smoothing dialog (template 7800). The user
// moves one numeric response and one numeric predictor from the source
// list, picks the smoother and its settings, and may save the smoothed
// values. The span belongs to the locally weighted and kernel smoothers,
// the degrees of freedom to the spline, the robustness iterations to the
// locally weighted fit and the kernel list to the kernel smoother; the
// others are disabled.
//
// Checked at OK: a response and a predictor; a span above 0 (at most 1);
// a save file while saving.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGSmoothData.h"

class CSmoothDlg : public CGUIPageDlg<CSmoothData>, public CSmoothDlgIds {
    DECLARE_DYNAMIC(CSmoothDlg)
public:
    enum : UINT { ID_MENU_RESPONSE = 33001, ID_MENU_PREDICTOR = 33002 };
    static constexpr UINT kMsgRoles = 7840;
    static constexpr UINT kMsgSpan = 7842;

    explicit CSmoothDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGSmoothDlg"; }

protected:
    void OnChoice() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()
};
