#include "private/Quality/KDGShewhartTabDlg.h"

IMPLEMENT_DYNAMIC(CShewhartTabDlg, CGUITabDlg)
