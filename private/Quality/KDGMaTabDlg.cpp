#include "private/Quality/KDGMaTabDlg.h"

IMPLEMENT_DYNAMIC(CMaTabDlg, CGUITabDlg)
