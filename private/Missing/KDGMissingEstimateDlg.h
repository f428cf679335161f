// CMissingEstimateDlg: the estimation page of the missing-value analysis
// (template 8530): the method, the EM iterations and convergence, Little's
// MCAR test and the matrix estimated.
//
// Rules of the page: the iterations, the convergence and the MCAR test
// belong to EM and are edited while EM is chosen; the convergence lies
// strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Missing/KDGMissingEstimateData.h"

class CMissingEstimateDlg : public CGUIPageDlg<CMissingEstimateData>, public CMissingEstimateDlgIds {
    DECLARE_DYNAMIC(CMissingEstimateDlg)
public:
    explicit CMissingEstimateDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGMissingEstimateDlg"; }

protected:
    void OnSelchangeMethod();

    DECLARE_MESSAGE_MAP()

private:
    bool IsEmChosen() const;
};
