#include "Msg/GeneralLinearModelMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Anova/KDGGLMTabDlg.h"
#include "private/Anova/KDGHypPairwiseDlg.h"
#include "private/Anova/KDGHypothesisTabDlg.h"
#include "private/Anova/KDGPairwiseTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2010, CGLMTabDlg, CGLMTabData, 2100),
    KAL_MENU_ROW(2011, CHypPairwiseDlg, CHypPairwiseData),
    KAL_MENU_ROW(2012, CPairwiseTabDlg, CPairwiseTabData),
    KAL_MENU_ROW(2013, CHypothesisTabDlg, CHypothesisTabData, 2105),
};

} // namespace

CGeneralLinearModelMsg::CGeneralLinearModelMsg(IGlobal* pGlobal)
    : CMenuGroupMsg(pGlobal, "Msg/GeneralLinearModelMsg", kRows)
{
}
