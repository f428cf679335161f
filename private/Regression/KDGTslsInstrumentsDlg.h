// CTslsInstrumentsDlg: the instruments page of two-stage least squares
// (template 7140). The user moves the endogenous regressors and the
// instruments from the source list (numeric variables only).
//
// Rules of the page, checked at OK against what the model page shows:
//  - there is an endogenous regressor, and each is a regressor of the model;
//  - no instrument is in the model (the dependent variable or a regressor);
//  - every endogenous regressor has an instrument: there are at least as
//    many instruments as endogenous regressors.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGTslsInstrumentsData.h"

class CTslsInstrumentsDlg : public CGUIPageDlg<CTslsInstrumentsData>, public CTslsInstrumentsDlgIds {
    DECLARE_DYNAMIC(CTslsInstrumentsDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_ENDOGENOUS = 7493, ID_MENU_INSTRUMENT = 7494 };
    static constexpr UINT kMsgNoEndogenous = 7160;
    static constexpr UINT kMsgEndogenousNotInModel = 7161;
    static constexpr UINT kMsgInstrumentInModel = 7162;
    static constexpr UINT kMsgTooFewInstruments = 7163;

    explicit CTslsInstrumentsDlg(CWnd* parent = nullptr);

    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGTslsInstrumentsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    // The first refusal of the endogenous list and of the instruments.
    UINT ValidateEndogenous(const CGUIArray<CGUIDataVariable>& regressors) const;
    UINT ValidateInstruments(const CGUIArray<CGUIDataVariable>& model) const;
};
