// CSurvivalNParTabDlg: the nonparametric survival analysis (template 101): the
// model page and the estimates page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Survival/KDGSurvivalDlg.h"
#include "private/Survival/KDGSurvivalNParDlg.h"
#include "private/Survival/KDGSurvivalNParTabData.h"

class CSurvivalNParTabDlg : public CGUIDataDlg<CSurvivalNParTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CSurvivalNParTabDlg)
public:
    explicit CSurvivalNParTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGSurvivalNParTabDlg"; }

private:
    CSurvivalDlg m_ModelDlg{this};
    CSurvivalNParDlg m_NParDlg{this};
};
