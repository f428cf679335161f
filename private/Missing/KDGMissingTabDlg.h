// CMissingTabDlg: the missing-value analysis (template 101): the variables
// page and the estimation page, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Missing/KDGMissingDlg.h"
#include "private/Missing/KDGMissingEstimateDlg.h"
#include "private/Missing/KDGMissingTabData.h"

class CMissingTabDlg : public CGUIDataDlg<CMissingTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMissingTabDlg)
public:
    explicit CMissingTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGMissingTabDlg"; }

private:
    CMissingDlg m_MissingDlg{this};
    CMissingEstimateDlg m_EstimateDlg{this};
};
