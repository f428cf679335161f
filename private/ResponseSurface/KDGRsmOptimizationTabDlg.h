// CRsmOptimizationTabDlg: the response-surface optimization (template 101):
// the factor page and the optimization page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/ResponseSurface/KDGRsmFactorsDlg.h"
#include "private/ResponseSurface/KDGRsmOptimizationDlg.h"
#include "private/ResponseSurface/KDGRsmOptimizationTabData.h"

class CRsmOptimizationTabDlg : public CGUIDataDlg<CRsmOptimizationTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CRsmOptimizationTabDlg)
public:
    explicit CRsmOptimizationTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGRsmOptimizationTabDlg"; }

private:
    CRsmFactorsDlg m_FactorsDlg{this};
    CRsmOptimizationDlg m_OptimizationDlg{this};
};
