// CCusumDlg: the CUSUM chart dialog (template 101) with the time-weighted chart page.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"

#include "private/Quality/KDGCusumData.h"
#include "private/Quality/KDGTimeWeightedDlg.h"

class CCusumDlg : public CGUIDataDlg<CCusumData, CGUITabDlg> {
    DECLARE_DYNAMIC(CCusumDlg)
public:
    explicit CCusumDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGCusumDlg"; }

    CTimeWeightedDlg& GetChartDlg() { return m_ChartDlg; }

private:
    CTimeWeightedDlg m_ChartDlg{this};
};
