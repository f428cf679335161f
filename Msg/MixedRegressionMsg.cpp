#include "Msg/MixedRegressionMsg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW_UNAVAILABLE(2015, CMixedTabDlg, CMixedTabData, 2194),
    KAL_MENU_ROW_UNAVAILABLE(2016, CMixedDataTabDlg, CMixedDataTabData, 2193),
};

} // namespace

CMixedRegressionMsg::CMixedRegressionMsg(IGlobal* pGlobal) : CMenuGroupMsg(pGlobal, "Msg/MixedRegressionMsg", kRows) {}
