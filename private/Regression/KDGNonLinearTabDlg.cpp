#include "private/Regression/KDGNonLinearTabDlg.h"

IMPLEMENT_DYNAMIC(CNonLinearTabDlg, CGUITabDlg)
IMPLEMENT_DYNAMIC(CNonLinLossTabDlg, CGUITabDlg)
