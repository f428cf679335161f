// CRegressionOptionsDlg: the estimation page (template 4140): complete or
// stepwise estimation, the tolerance and confidence, the mixture model,
// and the stepwise direction, stepping, criterion and limits.
//
// The page serves several tab dialogs. It knows its owner only by the
// owner id its tab gave it (GetDlgCaptionID) and tells its tab through
// NotifyTab when it changes what other pages depend on: the estimation
// method and the mixture model.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRegressionOptionsData.h"

class CRegressionOptionsDlg : public CGUIPageDlg<CRegressionOptionsData>, public CRegressionOptionsDlgIds {
    DECLARE_DYNAMIC(CRegressionOptionsDlg)
public:
    explicit CRegressionOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    // Whether the page asks for a mixture model: the check checked and
    // enabled. Before the page exists, what its settings will show.
    BOOL IsMixtureChecked() const;
    // Whether complete estimation is chosen (before the page exists, in
    // its settings).
    BOOL IsCompeteRadioChecked() const;

    // The discriminant analysis tells the page whether its functions are
    // quadratic: those are estimated completely, so the stepwise choice
    // is taken away (and complete estimation chosen) while they are.
    void OnDiscrimQuadraticCheckChange(bool quadratic);

    BOOL OnInitDialog() override;
    void UpdateDependentWindows() override;
    // The defaults of the page's owner.
    int GetAllDefault() override;
    void OnReset() override;
    // Records the mixture model check's enable state with the values.
    int OKLike() override;
    const char* GetSourceFile() const override { return "Source/KDGRegressionOptionsDlg"; }

protected:
    void OnCompleteEstimationRadio();
    void OnProbabilityRadio();
    void OnMixtureModelCheck();

    DECLARE_MESSAGE_MAP()

private:
    // The mixture model is offered for complete estimation of ordinary data,
    // to every owner but the discriminant analysis.
    bool IsMixtureAvailable(bool complete) const;
    // Stepwise estimation, offered unless the discriminant functions are
    // quadratic.
    bool IsStepwiseAvailable() const;

    bool m_bQuadraticModel = false;
};
