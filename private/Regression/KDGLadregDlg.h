// CLadregDlg: the least-absolute-deviations dialog (template 101): the
// shared model page and the estimation page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGLadregData.h"
#include "private/Regression/KDGLadregOptionsDlg.h"
#include "private/Regression/KDGRegModelDlg.h"

class CLadregDlg : public CGUIDataDlg<CLadregData, CGUITabDlg> {
    DECLARE_DYNAMIC(CLadregDlg)
public:
    explicit CLadregDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGLadregDlg"; }

    CRegModelDlg& GetModelDlg() { return m_ModelDlg; }
    CLadregOptionsDlg& GetOptionsDlg() { return m_OptionsDlg; }

private:
    CRegModelDlg m_ModelDlg{this};
    CLadregOptionsDlg m_OptionsDlg{this};
};
