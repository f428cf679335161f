#include "Msg/AnalysisofVarianceMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "private/Anova/KDGHypothesisTabDlg.h"
#include "private/Anova/KDGPairwiseTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2008, CAnovaTabDlg, CAnovaTabData, 2023, 2022, 2263),
    KAL_MENU_ROW(2009, CAnovaTestTabDlg, CAnovaTestTabData, 2026),
    KAL_MENU_ROW(2077, CPairwiseTabDlg, CPairwiseTabData),
};

} // namespace

CAnalysisofVarianceMsg::CAnalysisofVarianceMsg(IGlobal* pGlobal)
    : CMenuGroupMsg(pGlobal, "Msg/AnalysisofVarianceMsg", kRows)
{
}
