#include "private/Anova/KDGPairwiseTabDlg.h"

IMPLEMENT_SERIAL(CPairwiseTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CPairwiseTabDlg, CGUITabDlg)
