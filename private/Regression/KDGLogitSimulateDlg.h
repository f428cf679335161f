// CLogitSimulateDlg: simulation of the last logistic model (template 7540),
// a dialog without pages, built around the grid of scenarios (one row
// each: values for some regressors, "X = 20, X2 = 5"). It shows the model;
// the user sets the number of draws, the random seed (0: a new one each
// run) and the confidence of the simulated intervals. OK is refused while
// no logistic model is stored, and for a scenario that does not name the
// model's regressors with numbers (the grid shows the row).
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/Regression/KDGLastLogit.h"
#include "private/Regression/KDGLogitSimulateData.h"

class CLogitSimulateDlg : public CGUIPageDlg<CLogitSimulateData, CKVGridMultiCtrlBaseDlg>, public CLogitSimulateDlgIds {
    DECLARE_DYNAMIC(CLogitSimulateDlg)
public:
    explicit CLogitSimulateDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent, IDC_GRID) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "Source/KDGLogitSimulateDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    CLastLogitModel m_Model;
};
