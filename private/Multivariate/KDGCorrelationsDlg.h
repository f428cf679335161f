// CCorrelationsDlg: the first page of the correlations tab (template
// 2034). The user moves variables to the row list (the only list with one
// set) and, with two sets, to the column list; picks the kind of data and
// its measure, the deletion of missing values, and may save the matrix.
// The options page applies only to some measures: this page decides
// whether it is available and tells the resampling page at OK what the
// data are.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGCorrelationsData.h"

class CCorrelationsDlg : public CGUIPageDlg<CCorrelationsData>, public CCorrelationsDlgIds {
    DECLARE_DYNAMIC(CCorrelationsDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_ROWS = 33001, ID_MENU_COLUMNS = 33002 };
    // Captions of the row list: with two sets, and with one.
    static constexpr UINT kRowsCaption = 13112;
    static constexpr UINT kSelectedCaption = 13115;

    explicit CCorrelationsDlg(CWnd* parent = nullptr);

    // Whether the options page applies to the data type and measure the
    // page shows now: Pearson correlations, and the first four rank-order
    // measures.
    bool IsOptionsPageAvailable() const { return m_bOptionsPageAvailable; }

    BOOL OnInitDialog() override;
    void AddToolTips() override;
    void FillAllCombo();
    int InitDialogLike() override;
    void UpdateDependentWindows() override;
    int OKLike() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGCorrelationsDlg"; }

protected:
    void OnSetsOneRadio();
    void OnContinuousDataRadio();
    void OnSelchangeContinuousDataCombo();
    void OnSelchangeDistanceCombo();
    void OnSelchangeRankOrderDataCombo();
    void OnSelchangeUnorderedDataCombo();
    void OnSelchangeBinaryDataCombo();
    void OnSaveCheck();
    void OnChangeSaveFileEdit();

    DECLARE_MESSAGE_MAP()

private:
    bool IsTwoSets() const { return IsDlgButtonChecked(IDC_TWO_SETS) != 0; }
    // The data type whose radio button is checked, or -1 for none.
    int GetCheckedDataType() const;
    // Rule of the options page's availability, from the controls.
    bool OptionsApply() const;
    // Whether the options page (in use) estimates the missing values
    // itself, by EM or Hadi's method.
    bool OptionsEstimateMissingValues(bool optionsInUse) const;
    void ResetRowsAndColumnListCtrls();
    // A measure was chosen: this page's rules and the other pages' follow.
    void OnMeasureChanged(UINT combo, int line);

    // The data type before the last change of the radio buttons.
    int m_nDataType = CCorrelationsData::dataContinuous;
    bool m_bOptionsPageAvailable = true;
};
