// CShewhartDlg: the chart page of the Shewhart tab dialog (template 4360).
// The user moves variables to the chart, grouping and frequency lists,
// picks the chart type, may give a known center and sigma, and chooses the
// kind of control limits with their bounds.
//
// Rules of the page:
//  - chart and frequency variables are numeric; the frequency list holds one
//    variable, and none for a median chart (choosing the median chart
//    empties it);
//  - the known center and sigma are edited while their checks are set; for
//    X-bar, range and SD charts typing one clears and disables the other;
//  - the bounds of a kind of limits are edited while that kind is chosen;
//  - AGG is offered for P and NP charts with a weight variable, TOTAL with
//    two or more chart variables.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGShewhartData.h"

class CShewhartDlg : public CGUIPageDlg<CShewhartData>, public CShewhartDlgIds {
    DECLARE_DYNAMIC(CShewhartDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_CHART = 33021, ID_MENU_GROUP = 33022, ID_MENU_FREQUENCY = 33023 };
    static constexpr UINT kMsgSigmaEmpty = 12738;
    static constexpr UINT kMsgLimitsEmpty = 12864;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CShewhartDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    BOOL OnUpdateAddTarget(CCmdUI* pCmdUI) override;
    void MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor) override;
    void LButtonUpListCtrlHelper(const CWnd* over) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGShewhartDlg"; }

    void FillAllCombo();
    // The validations at OK: 0 when the entries are acceptable, else the
    // message id.
    UINT ValidateSigmaEdit() const;
    UINT ValidateSigmaLowerUpperEdit() const;
    UINT ValidatePresetLowerUpperEdit() const;
    // The item id of the chart type the combo shows (0: none, or a type
    // without one).
    UINT GetChartTypeItem() const;

protected:
    void OnSelchangeChartTypeCombo();
    // The center edit changed: for X-bar, range and SD charts sigma is no
    // longer in use.
    void OnDisableSigma();
    // The sigma edit changed: for the same charts the center is no longer
    // in use.
    void OnDisableCenter();
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    bool IsMedianChart() const { return GetChartTypeItem() == CShewhartData::kItemMedian; }
    // A median chart takes no frequency: neither by button, menu nor drag.
    bool RefusesFrequency(const CWnd* target);
    bool ExcludesCenterAndSigma() const;
};
