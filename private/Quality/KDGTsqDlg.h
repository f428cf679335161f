// CTsqDlg: the multivariate T² chart dialog (template 9200). The user moves
// two or more numeric measurements and, optionally, variables that form
// subgroups; has the mean vector and covariance matrix estimated or types
// known ones; gives probability limits; and may ask for the signals to be
// decomposed.
//
// Rules of the dialog:
//  - the mean vector and the covariance matrix are edited while Known is
//    chosen, and then checked against the measurements: one number each,
//    a square symmetric matrix of their order with a positive diagonal;
//  - probabilities given on both sides are in order.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGTsqData.h"

class CTsqDlg : public CGUIPageDlg<CTsqData>, public CTsqDlgIds {
    DECLARE_DYNAMIC(CTsqDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_MEASURE = 9290, ID_MENU_GROUP = 9291 };
    static constexpr UINT kMsgTooFewMeasurements = 9230;
    static constexpr UINT kMsgNotANumber = 9231;
    static constexpr UINT kMsgMeanSize = 9232;
    static constexpr UINT kMsgCovarianceSize = 9233;
    static constexpr UINT kMsgNotACovariance = 9234;
    static constexpr UINT kMsgLimitsOrder = 9133;

    explicit CTsqDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGTsqDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    UINT ValidateMean() const;
    UINT ValidateCovariance() const;
};
