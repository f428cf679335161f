// CRsmEstimateDlg: the estimation page of the response surface (template
// 8730): the order of the model, the canonical analysis, the lack-of-fit
// test and the confidence.
//
// Rules of the page: the canonical analysis belongs to a second-order
// model; the confidence lies strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/ResponseSurface/KDGRsmEstimateData.h"

class CRsmEstimateDlg : public CGUIPageDlg<CRsmEstimateData>, public CRsmEstimateDlgIds {
    DECLARE_DYNAMIC(CRsmEstimateDlg)
public:
    explicit CRsmEstimateDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRsmEstimateDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
