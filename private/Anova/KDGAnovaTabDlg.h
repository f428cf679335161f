// CAnovaTabDlg: the ANOVA estimate-model dialog (template 101): the model,
// repeated-measures, options and resampling pages, in that order.
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGAnovaDlg.h"
#include "private/Anova/KDGAnovaOptionsDlg.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "private/Anova/KDGRepeatMeasuresDlg.h"

class CAnovaTabDlg : public CGUIDataDlg<CAnovaTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CAnovaTabDlg)
public:
    explicit CAnovaTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    int GetDependentVariableCount() override { return m_AnovaDlg.GetDependentListCount(); }
    const char* GetSourceFile() const override { return "Source/KDGAnovaTabDlg"; }

    CAnovaDlg& GetAnovaDlg() { return m_AnovaDlg; }
    CRepeatMeasuresDlg& GetRepeatMeasuresDlg() { return m_RepeatMeasuresDlg; }
    CAnovaOptionsDlg& GetAnovaOptionsDlg() { return m_AnovaOptionsDlg; }
    CBootStrapDlg& GetBootStrapDlg() { return m_BootStrapDlg; }

private:
    CAnovaDlg m_AnovaDlg{this};
    CRepeatMeasuresDlg m_RepeatMeasuresDlg{this};
    CAnovaOptionsDlg m_AnovaOptionsDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
