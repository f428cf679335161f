// CMixedRandomDlg: the random-effects page of the linear mixed model
// (template 8100). The user moves numeric variables whose slopes vary at
// random to the random effects, the variable naming the subjects to the
// subject, keeps or drops the random intercept and picks the covariance
// structure.
//
// OK refuses a model without a random part, random effects without a
// subject, and, for the whole dialog, a model page with other than one
// dependent variable.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGMixedRandomData.h"

class CMixedRandomDlg : public CGUIPageDlg<CMixedRandomData>, public CMixedRandomDlgIds {
    DECLARE_DYNAMIC(CMixedRandomDlg)
public:
    enum : UINT { ID_MENU_RANDOM = 33101, ID_MENU_SUBJECT = 33102 };
    static constexpr UINT kMsgNoSubject = 8401;
    static constexpr UINT kMsgNoRandomPart = 8402;
    static constexpr UINT kMsgOneDependent = 8403;

    explicit CMixedRandomDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGMixedRandomDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
