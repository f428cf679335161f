#include "Msg/QualityAnalysisMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Quality/KDGArlDlg.h"
#include "private/Quality/KDGBoxWhiskerDlg.h"
#include "private/Quality/KDGCusumDlg.h"
#include "private/Quality/KDGEWMATabDlg.h"
#include "private/Quality/KDGMaTabDlg.h"
#include "private/Quality/KDGParetoDlg.h"
#include "private/Quality/KDGPcaDlg.h"
#include "private/Quality/KDGQaHistogramDlg.h"
#include "private/Quality/KDGRegressDlg.h"
#include "private/Quality/KDGRunChartDlg.h"
#include "private/Quality/KDGShewhartTabDlg.h"
#include "private/Quality/KDGTsqDlg.h"
#include "private/Quality/KDGXMrTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2033, CBoxWhiskerDlg, CBoxWhiskerData),
    KAL_MENU_ROW(2034, CArlDlg, CArlData),
    KAL_MENU_ROW(2035, CCusumDlg, CCusumData),
    KAL_MENU_ROW(2036, CEWMATabDlg, CEWMATabData, 2069, 2151),
    KAL_MENU_ROW(2037, CMaTabDlg, CMaTabData, 2153, 2152),
    KAL_MENU_ROW(2038, CArlDlg, CArlData),
    KAL_MENU_ROW(2039, CRegressDlg, CRegressData),
    KAL_MENU_ROW(2040, CRunChartDlg, CRunChartData),
    KAL_MENU_ROW(2041, CShewhartTabDlg, CShewhartTabData, 2279),
    KAL_MENU_ROW(2042, CTsqDlg, CTsqData),
    KAL_MENU_ROW(2043, CXMrTabDlg, CXMrTabData, 2338),
    KAL_MENU_ROW(2045, CQaHistogramDlg, CQaHistogramData),
    KAL_MENU_ROW(2046, CParetoDlg, CParetoData),
    KAL_MENU_ROW(2047, CPcaDlg, CPcaData),
};

} // namespace

CQualityAnalysisMsg::CQualityAnalysisMsg(IGlobal* pGlobal) : CMenuGroupMsg(pGlobal, "Msg/QualityAnalysisMsg", kRows) {}
