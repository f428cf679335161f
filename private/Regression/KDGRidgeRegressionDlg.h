// CRidgeRegressionDlg: the ridge regression dialog (template 101): the
// shared model page and the ridge page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGRegModelDlg.h"
#include "private/Regression/KDGRidgeOptionsDlg.h"
#include "private/Regression/KDGRidgeRegressionData.h"

class CRidgeRegressionDlg : public CGUIDataDlg<CRidgeRegressionData, CGUITabDlg> {
    DECLARE_DYNAMIC(CRidgeRegressionDlg)
public:
    explicit CRidgeRegressionDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGRidgeRegressionDlg"; }

    CRegModelDlg& GetModelDlg() { return m_ModelDlg; }
    CRidgeOptionsDlg& GetRidgeDlg() { return m_RidgeDlg; }

private:
    CRegModelDlg m_ModelDlg{this};
    CRidgeOptionsDlg m_RidgeDlg{this};
};
