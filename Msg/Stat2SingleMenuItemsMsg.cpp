#include "Msg/Stat2SingleMenuItemsMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Missing/KDGMissingTabDlg.h"
#include "private/ResponseSurface/KDGRsmEstimateTabDlg.h"
#include "private/ResponseSurface/KDGRsmOptimizationTabDlg.h"
#include "private/ResponseSurface/KDGRsmPlotDlg.h"
#include "private/Survival/KDGSurvivalNParTabDlg.h"
#include "private/Survival/KDGSurvivalTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2014, CMissingTabDlg, CMissingTabData, 2192),
    KAL_MENU_ROW(2059, CSurvivalTabDlg, CSurvivalTabData, 2294),
    KAL_MENU_ROW(2063, CRsmEstimateTabDlg, CRsmEstimateTabData),
    KAL_MENU_ROW(2065, CSurvivalNParTabDlg, CSurvivalNParTabData),
    KAL_MENU_ROW(2078, CRsmOptimizationTabDlg, CRsmOptimizationTabData, 2395),
    KAL_MENU_ROW(2079, CRsmPlotDlg, CRsmPlotData, 2396),
};

} // namespace

CStat2SingleMenuItemsMsg::CStat2SingleMenuItemsMsg(IGlobal* pGlobal)
    : CMenuGroupMsg(pGlobal, "Msg/Stat2SingleMenuItemsMsg", kRows)
{
}
