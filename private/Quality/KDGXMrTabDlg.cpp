#include "private/Quality/KDGXMrTabDlg.h"

IMPLEMENT_DYNAMIC(CXMrTabDlg, CGUITabDlg)
