// CLogitQuantilesDlg: quantiles of the predicted probability of the last
// logistic model (template 7520), a dialog without pages. It shows the
// model; the user may move grouping variables (any type, at most two) from
// the data sheet, sets the number of groups and the scale. OK is refused
// while no logistic model is stored, and for a grouping variable that is
// in the model already.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLastLogit.h"
#include "private/Regression/KDGLogitQuantilesData.h"

class CLogitQuantilesDlg : public CGUIPageDlg<CLogitQuantilesData>, public CLogitQuantilesDlgIds {
    DECLARE_DYNAMIC(CLogitQuantilesDlg)
public:
    enum : UINT { ID_MENU_BY = 33001 };
    static constexpr UINT kMsgGroupInModel = 7596;
    static constexpr int kMaxByVariables = 2;

    explicit CLogitQuantilesDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitQuantilesDlg"; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    CLastLogitModel m_Model;
};
