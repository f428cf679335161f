// CArlDlg: the average-run-length dialog of the Shewhart (2034) and
// time-weighted (2038) rows (template 5510). The user picks the chart,
// the subgroup size, the shifts to evaluate, the limit and the chart's own
// parameter; the labels of the last two follow the chart.
//
// Rules of the dialog:
//  - choosing a chart puts its usual limit and parameter in the edits; a
//    time-weighted chart whose parameter is still 0 (never set) gets them
//    when the dialog opens;
//  - the parameter is edited only for time-weighted charts;
//  - the step lies above 0 and at most at the largest shift; a median
//    chart needs subgroups of two or more; the EWMA weight lies in (0, 1],
//    the CUSUM k above 0, the moving-average span is a whole number from 2.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGArlData.h"

class CArlDlg : public CGUIPageDlg<CArlData>, public CArlDlgIds {
    DECLARE_DYNAMIC(CArlDlg)
public:
    static constexpr UINT kMsgWeight = 12941;
    static constexpr UINT kMsgSubgroupTooSmall = 12942;
    static constexpr UINT kMsgStep = 12943;
    static constexpr UINT kMsgOutOfRange = 2012;
    static constexpr UINT kMsgWholeNumber = 2011;

    explicit CArlDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGArlDlg"; }

protected:
    void OnSelchangeChart();

    DECLARE_MESSAGE_MAP()

private:
    UINT ChartList() const { return m_pData ? m_pData->ChartList() : CArlData::kShewhartRow; }
    UINT SelectedChart() const;
    // The chart's usual limit and parameter, into their edits.
    void PutUsualValues();
    UINT ValidateParameter() const;
};
