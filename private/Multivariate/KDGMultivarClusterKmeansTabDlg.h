// CMultivarClusterKmeansTabDlg: the k-means clustering dialog (template
// 101): the k-means and options pages, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGKmeansDlg.h"
#include "private/Multivariate/KDGKmeansOptionsDlg.h"
#include "private/Multivariate/KDGMultivarClusterKmeansTabData.h"

class CMultivarClusterKmeansTabDlg : public CGUIDataDlg<CMultivarClusterKmeansTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMultivarClusterKmeansTabDlg)
public:
    explicit CMultivarClusterKmeansTabDlg(CWnd* parent = nullptr);

    CKmeansDlg& GetKmeansDlg() { return m_KmeansDlg; }
    CKmeansOptionsDlg& GetKmeansOptionsDlg() { return m_KmeansOptionsDlg; }

    // Both pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGMultivarClusterKmeansTabDlg"; }

private:
    CKmeansDlg m_KmeansDlg{this};
    CKmeansOptionsDlg m_KmeansOptionsDlg{this};
};
