// CSurvivalTabDlg: the survival regression (template 101): the
// model page and the estimation page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Survival/KDGSurvivalDlg.h"
#include "private/Survival/KDGSurvivalOptionsDlg.h"
#include "private/Survival/KDGSurvivalTabData.h"

class CSurvivalTabDlg : public CGUIDataDlg<CSurvivalTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CSurvivalTabDlg)
public:
    explicit CSurvivalTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGSurvivalTabDlg"; }

private:
    CSurvivalDlg m_ModelDlg{this};
    CSurvivalOptionsDlg m_OptionsDlg{this};
};
