// CLogitPostDlg: post-estimation of the last logistic model (template
// 7500), a dialog without pages. It shows the model it works on; the user
// asks for predicted probabilities (optionally at typed values of some
// regressors), marginal effects and the classification table with its
// cut-off.
//
// Rules of the dialog: each result's options are enabled with its check
// box; OK is refused while no logistic model is stored, while no result is
// asked for, for values that do not name the model's regressors with
// numbers, and for a cut-off that is not strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLastLogit.h"
#include "private/Regression/KDGLogitPostData.h"

class CLogitPostDlg : public CGUIPageDlg<CLogitPostData>, public CLogitPostDlgIds {
    DECLARE_DYNAMIC(CLogitPostDlg)
public:
    static constexpr UINT kMsgNothingChosen = 7591;
    static constexpr UINT kMsgCutOff = 7595;

    explicit CLogitPostDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitPostDlg"; }

protected:
    void OnCheck() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()

private:
    CLastLogitModel m_Model;
};
