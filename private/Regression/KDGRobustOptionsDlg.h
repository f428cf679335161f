// CRobustOptionsDlg: the options page of the robust regressions (template
// 7080). The page shows the controls of the estimator its dialog serves and
// hides the others: the coverage for least median and least trimmed
// squares and for LAD on an MCD design; the breakdown point for S- and
// MM-estimation, the efficiency for MM; subsamples and seed for every
// estimator that searches random subsets; the weight function, its tuning
// constant and the scale estimate for M-regression; iterations and
// convergence for the estimators that reweigh.
//
// Rules of the page:
//  - choosing a weight function puts its usual tuning constant in the edit;
//  - the save list and file are in use while saving is asked for;
//  - the breakdown point, the tuning constant and the convergence lie
//    above 0.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRobustOptionsData.h"

#include <initializer_list>

class CRobustOptionsDlg : public CGUIPageDlg<CRobustOptionsData>, public CRobustOptionsDlgIds {
    DECLARE_DYNAMIC(CRobustOptionsDlg)
public:
    explicit CRobustOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGRobustOptionsDlg"; }

protected:
    void OnSelchangeFunction();
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    // The settings the page edits: they know the estimator (the working
    // copy holds the values only).
    const CRobustOptionsData& Owner() const { return m_pData ? *m_pData : m_Work; }
    void FillCombo(UINT control, UINT list);
    // Shows and enables the controls of one estimator's block.
    void ShowBlock(std::initializer_list<UINT> controls, bool show);
};
