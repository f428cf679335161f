// CTslsDlg: the two-stage least squares dialog (template 101): the shared
// model page and the instruments page, in that order. The instruments page
// checks its lists against the model the first page shows.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGRegModelDlg.h"
#include "private/Regression/KDGTslsData.h"
#include "private/Regression/KDGTslsInstrumentsDlg.h"

class CTslsDlg : public CGUIDataDlg<CTslsData, CGUITabDlg> {
    DECLARE_DYNAMIC(CTslsDlg)
public:
    explicit CTslsDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGTslsDlg"; }

    CRegModelDlg& GetModelDlg() { return m_ModelDlg; }
    CTslsInstrumentsDlg& GetInstrumentsDlg() { return m_InstrumentsDlg; }

private:
    CRegModelDlg m_ModelDlg{this};
    CTslsInstrumentsDlg m_InstrumentsDlg{this};
};
