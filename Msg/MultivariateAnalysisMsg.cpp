#include "Msg/MultivariateAnalysisMsg.h"

#include "Msg/LaunchDialog.h"
#include "private/Multivariate/KDGAddTreeDlg.h"
#include "private/Multivariate/KDGCoranTabDlg.h"
#include "private/Multivariate/KDGFactorTabDlg.h"
#include "private/Multivariate/KDGJoinTabDlg.h"
#include "private/Multivariate/KDGMultivarClusterKmeansTabDlg.h"
#include "private/Multivariate/KDGTreesTabDlg.h"

namespace {

const MenuCommandRow kRows[] = {
    KAL_MENU_ROW(2017, CAddTreeDlg, CAddTreeData),
    KAL_MENU_ROW(2018, CJoinTabDlg, CJoinTabData, 2107, 2266, 2375),
    KAL_MENU_ROW(2019, CMultivarClusterKmeansTabDlg, CMultivarClusterKmeansTabData, 2394, 2374),
    KAL_MENU_ROW(2020, CCoranTabDlg, CCoranTabData, 2056),
    KAL_MENU_ROW_UNAVAILABLE(2021, CDiscrimTabDlg, CDiscrimTabData, 2065, 2211),
    KAL_MENU_ROW_UNAVAILABLE(2022, CRdiscrimDlg, CRdiscrimData),
    KAL_MENU_ROW(2023, CFactorTabDlg, CFactorTabData, 2074),
    KAL_MENU_ROW_UNAVAILABLE(2024, CManovaBetweenDlg, CManovaBetweenData),
    KAL_MENU_ROW_UNAVAILABLE(2025, CMultivariateManovaEstimateTabDlg, CMultivariateManovaEstimateTabData, 2182),
    KAL_MENU_ROW_UNAVAILABLE(2026, CManovaHypothesisTabDlg, CManovaHypothesisTabData, 2184),
    KAL_MENU_ROW_UNAVAILABLE(2027, CHypPairwiseDlg, CHypPairwiseData),
    KAL_MENU_ROW_UNAVAILABLE(2028, CManovaWithinDlg, CManovaWithinData),
    KAL_MENU_ROW(2029, CTreesTabDlg, CTreesTabData, 2318),
};

} // namespace

CMultivariateAnalysisMsg::CMultivariateAnalysisMsg(IGlobal* pGlobal)
    : CMenuGroupMsg(pGlobal, "Msg/MultivariateAnalysisMsg", kRows)
{
}
