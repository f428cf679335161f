#include "Msg/MixedRegressionMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Mixed/KDGMixedDataTabDlg.h"
#include "private/Mixed/KDGMixedTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2015, CMixedTabDlg, CMixedTabData, 2194),
    KAL_MENU_ROW(2016, CMixedDataTabDlg, CMixedDataTabData, 2193),
};

} // namespace

CMixedRegressionMsg::CMixedRegressionMsg(IGlobal* pGlobal) : CMenuGroupMsg(pGlobal, "Msg/MixedRegressionMsg", kRows) {}
