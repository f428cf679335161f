#include "private/Quality/KDGEWMATabDlg.h"

IMPLEMENT_DYNAMIC(CEWMATabDlg, CGUITabDlg)
