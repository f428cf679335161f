// CMultivariateManovaEstimateTabDlg: the MANOVA estimate-model dialog
// (template 101): the model, repeated-measures, options and resampling
// pages. The model page is the general linear model's, which here asks for
// two or more dependent variables; the repeated measures serve owner 2265
// (they join "MODEL" and count the model page's dependent variables).
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGAnovaOptionsDlg.h"
#include "private/Anova/KDGGLMDlg.h"
#include "private/Anova/KDGRepeatMeasuresDlg.h"
#include "private/Multivariate/KDGMultivariateManovaEstimateTabData.h"

// The model page of a multivariate model: the general linear model's page
// that refuses fewer than two dependent variables at OK.
class CManovaModelDlg : public CGLMDlg {
    DECLARE_DYNAMIC(CManovaModelDlg)
public:
    static constexpr UINT kMsgTwoDependents = 6400;

    using CGLMDlg::CGLMDlg;

    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "Source/KDGManovaModelDlg"; }
};

class CMultivariateManovaEstimateTabDlg : public CGUIDataDlg<CMultivariateManovaEstimateTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMultivariateManovaEstimateTabDlg)
public:
    static constexpr UINT kRepeatMeasuresOwner = 2265;

    explicit CMultivariateManovaEstimateTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    int GetDependentVariableCount() override { return m_ModelDlg.GetDependentListCount(); }
    const char* GetSourceFile() const override { return "Source/KDGMultivariateManovaEstimateTabDlg"; }

protected:
    void OnDataSet() override;

private:
    CManovaModelDlg m_ModelDlg{this};
    CRepeatMeasuresDlg m_RepeatMeasuresDlg{this};
    CAnovaOptionsDlg m_AnovaOptionsDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
