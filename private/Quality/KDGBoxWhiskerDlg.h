// CBoxWhiskerDlg: the box-and-whisker dialog (template 5570): measurements,
// grouping variables and the three drawing options; no rules beyond the
// graphs' shared ones.
#pragma once

#include "private/Quality/KDGBoxWhiskerData.h"
#include "private/Quality/KDGQcGraphDlg.h"

class CBoxWhiskerDlg : public CQcGraphDlg<CBoxWhiskerData, CBoxWhiskerDlgIds> {
    DECLARE_DYNAMIC(CBoxWhiskerDlg)
public:
    explicit CBoxWhiskerDlg(CWnd* parent = nullptr) : CQcGraphDlg(parent) {}
    const char* GetSourceFile() const override { return "Source/KDGBoxWhiskerDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
