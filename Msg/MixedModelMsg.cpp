#include "Msg/MixedModelMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Mixed/KDGHypothesistestTabDlg.h"
#include "private/Mixed/KDGMixedModelHierarchicalLinearMixedModelTabDlg.h"
#include "private/Mixed/KDGMixedModelLinearMixedModelTabDlg.h"
#include "private/Mixed/KDGMixedModelVarianceComponentsTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2067, CMixedModelLinearMixedModelTabDlg, CMixedModelLinearMixedModelTabData, 2356, 2356),
    KAL_MENU_ROW(2068, CMixedModelHierarchicalLinearMixedModelTabDlg, CMixedModelHierarchicalLinearMixedModelTabData,
                 2355, 2355),
    KAL_MENU_ROW(2069, CMixedModelVarianceComponentsTabDlg, CMixedModelVarianceComponentsTabData, 2392, 2197),
    KAL_MENU_ROW(2073, CHypothesistestTabDlg, CHypothesistestTabData, 2393, 2376),
};

} // namespace

CMixedModelMsg::CMixedModelMsg(IGlobal* pGlobal) : CMenuGroupMsg(pGlobal, "Msg/MixedModelMsg", kRows) {}
