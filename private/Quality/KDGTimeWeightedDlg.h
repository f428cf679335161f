// CTimeWeightedDlg: the chart page of the CUSUM, EWMA and moving-average
// dialogs (template 5460). The user moves numeric measurements to the chart
// list and, optionally, variables that form subgroups; gives a target and a
// known sigma or leaves them to be estimated; and sets the parameters of the
// chart the page serves. The controls of the other two charts are hidden.
//
// Rules of the page:
//  - the bounds of a kind of limits are edited while that kind is chosen;
//    sigma multiples need at least one bound;
//  - a chart needs a measurement, and the EWMA weight lies in (0, 1].
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGControlLimits.h"
#include "private/Quality/KDGTimeWeightedData.h"

class CTimeWeightedDlg : public CGUIPageDlg<CTimeWeightedData>, public CTimeWeightedDlgIds {
    DECLARE_DYNAMIC(CTimeWeightedDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_CHART = 33041, ID_MENU_GROUP = 33042 };
    static constexpr UINT kMsgNoMeasurement = 12940;
    static constexpr UINT kMsgLimitsEmpty = 12864;
    static constexpr UINT kMsgLimitsOrder = 9133;

    static constexpr kal::quality::LimitsControls kLimits{IDC_PLIMITS_RADIO, IDC_SLIMITS_RADIO, IDC_PLIMITS_LOWER,
                                                          IDC_PLIMITS_UPPER, IDC_SLIMITS_LOWER, IDC_SLIMITS_UPPER};

    explicit CTimeWeightedDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGTimeWeightedDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    TimeWeightedChart Chart() const { return m_pData ? m_pData->GetChart() : TimeWeightedChart::Cusum; }
    // Shows and enables the controls of one chart's own block.
    void ShowBlock(std::initializer_list<UINT> controls, bool show);
    UINT ValidateWeight() const;
    UINT ValidateSigmaLimits() const;
    UINT ValidateProbabilityLimits() const;
};
