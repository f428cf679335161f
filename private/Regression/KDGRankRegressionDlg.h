// CRankRegressionDlg: the rank regression dialog of both rows (template
// 101): the shared model page and the estimation page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGRankOptionsDlg.h"
#include "private/Regression/KDGRankRegressionData.h"
#include "private/Regression/KDGRegModelDlg.h"

class CRankRegressionDlg : public CGUIDataDlg<CRankRegressionData, CGUITabDlg> {
    DECLARE_DYNAMIC(CRankRegressionDlg)
public:
    explicit CRankRegressionDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGRankRegressionDlg"; }

    CRegModelDlg& GetModelDlg() { return m_ModelDlg; }
    CRankOptionsDlg& GetOptionsDlg() { return m_OptionsDlg; }

private:
    CRegModelDlg m_ModelDlg{this};
    CRankOptionsDlg m_OptionsDlg{this};
};
