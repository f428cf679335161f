// CRegressionPredictDlg: the prediction page (template 4175). Predicts the
// cases of another data file with the estimated model, and may save the
// predictions. In use only while the estimation page chooses complete
// estimation.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRegressionPredictData.h"

class CRegressionPredictDlg : public CGUIPageDlg<CRegressionPredictData>, public CRegressionPredictDlgIds {
    DECLARE_DYNAMIC(CRegressionPredictDlg)
public:
    explicit CRegressionPredictDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void AddToolTips() override;
    void FillComboSaveCombo();
    void UpdateDependentWindows() override;
    BOOL IsWindowEnabled() override;
    const char* GetSourceFile() const override { return "Source/KDGRegressionPredictDlg"; }

protected:
    void OnPredictCheck();
    void OnSaveCheck();
    void OnSelchangeSaveCombo();
    void OnChangeUseEdit();
    void OnChangeSaveEdit();

    DECLARE_MESSAGE_MAP()

private:
    // A file edit's tip: the whole file name once there is one.
    void ShowFileTip(UINT id);
};
