#include "Msg/RegressionMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Regression/KDGBayesianDlg.h"
#include "private/Regression/KDGLadregDlg.h"
#include "private/Regression/KDGLogitPostDlg.h"
#include "private/Regression/KDGLogitQuantilesDlg.h"
#include "private/Regression/KDGLogitSimulateDlg.h"
#include "private/Regression/KDGLogitTabDlg.h"
#include "private/Regression/KDGNonLinearTabDlg.h"
#include "private/Regression/KDGPlsTabDlg.h"
#include "private/Regression/KDGProbitTabDlg.h"
#include "private/Regression/KDGRankRegressionDlg.h"
#include "private/Regression/KDGRegressionTabDlg.h"
#include "private/Regression/KDGRidgeRegressionDlg.h"
#include "private/Regression/KDGRobustTabDlg.h"
#include "private/Regression/KDGSmoothTabDlg.h"
#include "private/Regression/KDGTslsDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2001, CTslsDlg, CTslsData),
    KAL_MENU_ROW(2004, CLogitTabDlg, CLogitTabData, 2146, 2216, 2145),
    KAL_MENU_ROW(2005, CLogitPostDlg, CLogitPostData),
    KAL_MENU_ROW(2006, CLogitQuantilesDlg, CLogitQuantilesData),
    KAL_MENU_ROW(2007, CLogitSimulateDlg, CLogitSimulateData),
    KAL_MENU_ROW(2030, CNonLinearTabDlg, CNonLinearTabData, 1400, 2205, 2092, 2202),
    KAL_MENU_ROW(2031, CNonLinLossTabDlg, CNonLinLossTabData, 2204, 2203),
    KAL_MENU_ROW(2032, CProbitTabDlg, CProbitTabData, 2251, 2043),
    KAL_MENU_ROW(2050, CBayesianDlg, CBayesianData),
    KAL_MENU_ROW(2051, CRegressionTabDlg, CRegressionTabData, 2261),
    KAL_MENU_ROW(2052, CRidgeRegressionDlg, CRidgeRegressionData),
    KAL_MENU_ROW(2053, CLadregDlg, CLadregData),
    KAL_MENU_ROW(2054, CMregLmsregTabDlg, CMregLmsregTabData, 2385, 2144),
    KAL_MENU_ROW(2055, CMregTabDlg, CMregTabData, 2149),
    KAL_MENU_ROW(2056, CRankRegressionDlg, CRankRegressionData),
    KAL_MENU_ROW(2058, CSmoothTabDlg, CSmoothTabData, 2281),
    KAL_MENU_ROW(2064, CPlsTabDlg, CPlsTabData, 2389),
    KAL_MENU_ROW(2070, CMregLtsTabDlg, CMregLtsTabData, 2386, 2148),
    KAL_MENU_ROW(2071, CMregSregTabDlg, CMregSregTabData, 2387, 2276),
    KAL_MENU_ROW(2072, CMregMmregTabDlg, CMregMmregTabData, 2196),
    KAL_MENU_ROW(2074, CRankRegressionDlg, CRankRegressionData),
    KAL_MENU_ROW(2075, CLadregMcdregTabDlg, CLadregMcdregTabData),
    KAL_MENU_ROW(2076, CMregTabDlg, CMregTabData, 2149),
};

} // namespace

CRegressionMsg::CRegressionMsg(IGlobal* pGlobal) : CMenuGroupMsg(pGlobal, "Msg/RegressionMsg", kRows) {}
