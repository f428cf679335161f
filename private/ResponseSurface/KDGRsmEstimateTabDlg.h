// CRsmEstimateTabDlg: the response-surface estimation (template 101): the
// factor page and the estimation page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/ResponseSurface/KDGRsmEstimateDlg.h"
#include "private/ResponseSurface/KDGRsmEstimateTabData.h"
#include "private/ResponseSurface/KDGRsmFactorsDlg.h"

class CRsmEstimateTabDlg : public CGUIDataDlg<CRsmEstimateTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CRsmEstimateTabDlg)
public:
    explicit CRsmEstimateTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGRsmEstimateTabDlg"; }

private:
    CRsmFactorsDlg m_FactorsDlg{this};
    CRsmEstimateDlg m_EstimateDlg{this};
};
