// CDiscrimTabDlg: the discriminant analysis dialog (template 101): the
// model page (template 6100) and the linear regression's estimation page
// under the discriminant owner 2211. The owner id comes from the menu row's
// second caption, whatever page order the row's captions would suggest.
//
// The model page's quadratic check decides what the estimation page offers:
// quadratic functions are estimated completely, so stepwise estimation is
// out of reach while it is checked.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGDiscrimTabData.h"
#include "private/Regression/KDGRegressionOptionsDlg.h"

class CDiscrimDlg : public CDiscrimRolesDlg<CDiscrimData, CDiscrimDlgIds> {
    DECLARE_DYNAMIC(CDiscrimDlg)
public:
    explicit CDiscrimDlg(CWnd* parent = nullptr) : CDiscrimRolesDlg(parent) {}

    // What the page shows now (before it exists, its settings).
    bool IsQuadraticChecked() const;

    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGDiscrimDlg"; }

protected:
    // The estimation page follows the quadratic check.
    void OnQuadraticCheck();

    DECLARE_MESSAGE_MAP()
};

class CDiscrimTabDlg : public CGUIDataDlg<CDiscrimTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CDiscrimTabDlg)
public:
    static constexpr UINT kEstimationOwner = CRegressionOptionsData::kOwnerDiscriminant;

    explicit CDiscrimTabDlg(CWnd* parent = nullptr);

    // The estimation page learns of the quadratic functions from here.
    void OnDiscrimQuadraticCheckChange();

    int GetAllDefault() override;
    BOOL OnInitDialog() override;
    // The dialog's caption; the owner of the estimation page is fixed.
    void SetCaptionIDs(const std::array<UINT, 4>& captionIds) override;
    const char* GetSourceFile() const override { return "Source/KDGDiscrimTabDlg"; }

protected:
    void OnDataSet() override;

private:
    CDiscrimDlg m_DiscrimDlg{this};
    CRegressionOptionsDlg m_RegressionOptionsDlg{this};
};
