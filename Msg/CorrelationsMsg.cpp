#include "Msg/CorrelationsMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Multivariate/KDGCorrelationsTabDlg.h"
#include "private/Multivariate/KDGSetCorTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2002, CCorrelationsTabDlg, CCorrelationsTabData, 2057, 2363),
    KAL_MENU_ROW(2057, CSetCorTabDlg, CSetCorTabData, 2278, 2044),
};

} // namespace

CCorrelationsMsg::CCorrelationsMsg(IGlobal* pGlobal) : CMenuGroupMsg(pGlobal, "Msg/CorrelationsMsg", kRows) {}
