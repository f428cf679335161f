// CGLMTabDlg: the general linear model dialog (template 101): the model,
// estimation, repeated-measures, options and resampling pages, in that
// order. The shared pages learn whom they serve from their owner ids: the
// estimation page 2213 (it writes the maximum steps), the repeated
// measures 2264 (they join "MODEL" and count the model page's dependent
// variables). As in the linear regression, the options and resampling
// pages belong to complete estimation.
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGAnovaOptionsDlg.h"
#include "private/Anova/KDGGLMDlg.h"
#include "private/Anova/KDGGLMTabData.h"
#include "private/Anova/KDGRepeatMeasuresDlg.h"
#include "private/Regression/KDGRegressionOptionsDlg.h"

class CGLMTabDlg : public CGUIDataDlg<CGLMTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CGLMTabDlg)
public:
    static constexpr UINT kEstimationOwner = CRegressionOptionsData::kOwnerGlmFirst;
    static constexpr UINT kRepeatMeasuresOwner = 2264;

    explicit CGLMTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    int GetDependentVariableCount() override { return m_GLMDlg.GetDependentListCount(); }
    CString GetUnavailableReason(CGUIBaseDlg& page) override;
    BOOL IsBootStrapWindowEnabled() override { return m_RegressionOptionsDlg.IsCompeteRadioChecked(); }
    BOOL OnInitDialog() override;
    const char* GetSourceFile() const override { return "Source/KDGGLMTabDlg"; }

protected:
    // The shared pages get their owner ids with their settings.
    void OnDataSet() override;

private:
    CGLMDlg m_GLMDlg{this};
    CRegressionOptionsDlg m_RegressionOptionsDlg{this};
    CRepeatMeasuresDlg m_RepeatMeasuresDlg{this};
    CAnovaOptionsDlg m_AnovaOptionsDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
