// CRsmPlotDlg: the response-surface plots (template 101): the factor page
// and the plot page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/ResponseSurface/KDGRsmFactorsDlg.h"
#include "private/ResponseSurface/KDGRsmPlotData.h"
#include "private/ResponseSurface/KDGRsmPlotPageDlg.h"

class CRsmPlotDlg : public CGUIDataDlg<CRsmPlotData, CGUITabDlg> {
    DECLARE_DYNAMIC(CRsmPlotDlg)
public:
    explicit CRsmPlotDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGRsmPlotDlg"; }

private:
    CRsmFactorsDlg m_FactorsDlg{this};
    CRsmPlotPageDlg m_PlotDlg{this};
};
