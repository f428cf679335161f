// CRdiscrimDlg: the robust discriminant analysis dialog (template 6150):
// the discriminant roles and the robust estimate, whose fraction edit
// follows the method: the trimming fraction for the minimum covariance
// determinant, the breakdown point for the S-estimate.
#pragma once

#include "private/Multivariate/KDGDiscrimRoles.h"
#include "private/Multivariate/KDGRdiscrimData.h"

class CRdiscrimDlg : public CDiscrimRolesDlg<CRdiscrimData, CRdiscrimDlgIds> {
    DECLARE_DYNAMIC(CRdiscrimDlg)
public:
    explicit CRdiscrimDlg(CWnd* parent = nullptr) : CDiscrimRolesDlg(parent) {}

    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGRdiscrimDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
