// CLogitSimulateData: simulation of the last logistic model (see
// CLastLogitModel): coefficients drawn from their estimated sampling
// distribution, each draw giving the predicted probability of every
// scenario, so that each prediction comes with a simulated interval. A
// scenario gives values to some regressors ("X = 20, X2 = 5"), the others
// staying at their means; without scenarios the model is simulated at the
// means. Written after the module line as the "SIMULATE" line and one
// "SCENARIO" line per scenario.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logitpost.h"

#include <climits>

class CLogitSimulateData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitSimulateData)
public:
    static constexpr UINT kModuleLogit = 12914;
    static constexpr int kMaxDraws = 1000000;

    CLogitSimulateData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultDrawsEdit() { return CGUIData<int>(1000); }
    static CGUIData<unsigned int> GetDefaultSeedEdit() { return CGUIData<unsigned int>(0u); }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(0.95); }
    static CGUIArray<CString> GetDefaultScenarios() { return {}; }

    int GetAll(CGUIData<int>& draws, CGUIData<unsigned int>& seed, CGUIData<double>& confidence,
               CGUIArray<CString>& scenarios) const
    {
        return kal::CopyFieldsOut(*this, draws, seed, confidence, scenarios);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<int>& draws, const CGUIData<unsigned int>& seed, const CGUIData<double>& confidence,
               const CGUIArray<CString>& scenarios)
    {
        return kal::CopyFieldsIn(*this, draws, seed, confidence, scenarios);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The dialog's controls (template 7540); the scenarios are the rows of
    // its grid, exchanged by the dialog and kept as it wrote them back.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitSimulateData>;
        using Ids = CLogitSimulateDlgIds;
        using D = CLogitSimulateData;
        return std::tuple{
            F::Value(&D::m_DrawsEdit, Ids::IDC_DRAWS_EDIT, &GetDefaultDrawsEdit).Range(1, kMaxDraws),
            F::Value(&D::m_SeedEdit, Ids::IDC_SEED_EDIT, &GetDefaultSeedEdit),
            F::Value(&D::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit).Range(0, 1),
            F::Value(&D::m_Scenarios, 0, &GetDefaultScenarios),
        };
    }

private:
    friend class CLogitSimulateDlg; // exchanges the grid

    CGUIData<int> m_DrawsEdit;
    CGUIData<unsigned int> m_SeedEdit;
    CGUIData<double> m_ConfidenceEdit;
    CGUIArray<CString> m_Scenarios;
};
