// CQaHistogramDlg: the quality histogram dialog (template 5590):
// measurements, the number of bins, the tolerance limits and target
// drawn, and the fitted normal curve. Limits given on both sides must be in
// order, and a target given must lie within them.
#pragma once

#include "private/Quality/KDGQaHistogramData.h"
#include "private/Quality/KDGQcGraphDlg.h"

class CQaHistogramDlg : public CQcGraphDlg<CQaHistogramData, CQaHistogramDlgIds> {
    DECLARE_DYNAMIC(CQaHistogramDlg)
public:
    static constexpr UINT kMsgLimitsOrder = 12945;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CQaHistogramDlg(CWnd* parent = nullptr) : CQcGraphDlg(parent) {}

    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "Source/KDGQaHistogramDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
