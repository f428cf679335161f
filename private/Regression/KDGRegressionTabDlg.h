// CRegressionTabDlg: the linear regression dialog (template 101): the
// model, estimation, options (the ANOVA options page), prediction and
// resampling pages, in that order. Prediction, the options page's tests and
// resampling belong to complete estimation: with stepwise estimation the
// prediction page is disabled and the other two are unavailable.
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGAnovaOptionsDlg.h"
#include "private/Regression/KDGRegressionDlg.h"
#include "private/Regression/KDGRegressionOptionsDlg.h"
#include "private/Regression/KDGRegressionPredictDlg.h"
#include "private/Regression/KDGRegressionTabData.h"

class CRegressionTabDlg : public CGUIDataDlg<CRegressionTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CRegressionTabDlg)
public:
    // Why the options and resampling pages are unavailable with stepwise
    // estimation (a string id).
    static constexpr UINT kCompleteEstimationOnly = 4195;

    explicit CRegressionTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    int GetDependentVariableCount() override { return m_RegressionDlg.GetDependentListCount(); }
    CString GetUnavailableReason(CGUIBaseDlg& page) override;
    BOOL OnInitDialog() override;
    const char* GetSourceFile() const override { return "Source/KDGRegressionTabDlg"; }

    CRegressionDlg& GetRegressionDlg() { return m_RegressionDlg; }
    CRegressionOptionsDlg& GetRegressionOptionsDlg() { return m_RegressionOptionsDlg; }
    CAnovaOptionsDlg& GetCAnovaOptionsDlg() { return m_AnovaOptionsDlg; }
    CRegressionPredictDlg& GetRegressionPredictDlg() { return m_RegressionPredictDlg; }
    CBootStrapDlg& GetBootStrapDlg() { return m_BootStrapDlg; }

    // What the pages show now.
    BOOL IsRegressionIncludeConstantChecked() const { return m_RegressionDlg.IsIncludeConstantChecked(); }
    int GetRegressionIndependentCount() { return m_RegressionDlg.GetIndependentListCount(); }
    BOOL IsOptionsMixtureChecked() const { return m_RegressionOptionsDlg.IsMixtureChecked(); }
    BOOL IsBootStrapWindowEnabled() override { return m_RegressionOptionsDlg.IsCompeteRadioChecked(); }

protected:
    // The ANOVA options page gets its owner id with its settings.
    void OnDataSet() override;

private:
    CRegressionDlg m_RegressionDlg{this};
    CRegressionOptionsDlg m_RegressionOptionsDlg{this};
    CAnovaOptionsDlg m_AnovaOptionsDlg{this};
    CRegressionPredictDlg m_RegressionPredictDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
