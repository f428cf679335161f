// CXMrDlg: the chart page of the X-MR tab dialog (template 5430). The user
// moves numeric variables to the chart list, sets the span of the moving
// ranges, may give known values, and chooses the center line and the kind
// of control limits with their bounds.
//
// Rules of the page:
//  - a known average moving range and a known sigma both fix the spread:
//    while one of them holds a value the other is disabled (and emptied, if
//    settings ever brought both);
//  - the bounds of a kind of limits are edited while that kind is chosen;
//    sigma limits need at least one bound.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGControlLimits.h"
#include "private/Quality/KDGXMrData.h"

class CXMrDlg : public CGUIPageDlg<CXMrData>, public CXMrDlgIds {
    DECLARE_DYNAMIC(CXMrDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_CHART = 33031 };
    static constexpr UINT kMsgLimitsEmpty = 12864;

    static constexpr kal::quality::LimitsControls kLimits{IDC_PLIMITS_RADIO, IDC_SLIMITS_RADIO, IDC_PLIMITS_LOWER,
                                                          IDC_PLIMITS_UPPER, IDC_SLIMITS_LOWER, IDC_SLIMITS_UPPER};

    explicit CXMrDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGXMrDlg"; }

    // 0 when the sigma limits have a bound (or are not chosen), else the
    // message id.
    UINT ValidateSigmaLowerUpperEdit() const;

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    // Whether the edit holds a value: anything but an empty text or a zero,
    // which both stand for "none given".
    bool HoldsValue(UINT edit) const;
};
