// CProbitData: the model page of probit regression (2032). The response is
// binary, or a count of responses out of a total on each case (grouped
// data, as dose-response trials are kept); the dose, transformed by its
// common logarithm, its natural logarithm or not at all; further
// regressors; the constant; the natural response rate (none, estimated, or
// a known share of the subjects that respond whatever the dose); and the
// confidence of the fiducial limits of the effective doses.
//
// Written as the module line, the "MODEL" line (the totals after
// " / TOTAL = ") and the "ESTIMATE" line, which the resampling page joins.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/probit.h"

class CProbitData : public CGUIBaseObj {
    DECLARE_SERIAL(CProbitData)
public:
    static constexpr UINT kModuleProbit = 12986;
    // Response: binary (0), counts out of totals (1).
    static constexpr UINT kResponseRadio = 7706;
    // Natural response: none (0), estimated (1), known (2).
    static constexpr UINT kNaturalRadio = 7724;
    enum Natural : UINT { kNoNatural = 7724, kEstimatedNatural = 7725, kKnownNatural = 7726 };
    static constexpr UINT kTransformCombo = 7722;

    CProbitData() { kal::ResetFields(*this); }

    static int GetDefaultResponseRadio() { return 0; }
    static int GetDefaultConstantCheck() { return 1; }
    static int GetDefaultTransformCombo() { return 1; }
    static int GetDefaultNaturalRadio() { return 0; }
    static CGUIData<double> GetDefaultNaturalEdit() { return CGUIData<double>(0.0); }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(0.95); }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& response,
               CGUIArray<CGUIDataVariable>& total, CGUIArray<CGUIDataVariable>& dose,
               CGUIArray<CGUIDataVariable>& covariates, int& responseKind, int& constant, int& transform, int& natural,
               CGUIData<double>& naturalRate, CGUIData<double>& confidence) const
    {
        return kal::CopyFieldsOut(*this, source, response, total, dose, covariates, responseKind, constant, transform,
                                  natural, naturalRate, confidence);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& response,
               const CGUIArray<CGUIDataVariable>& total, const CGUIArray<CGUIDataVariable>& dose,
               const CGUIArray<CGUIDataVariable>& covariates, int responseKind, int constant, int transform,
               int natural, const CGUIData<double>& naturalRate, const CGUIData<double>& confidence)
    {
        return kal::CopyFieldsIn(*this, source, response, total, dose, covariates, responseKind, constant, transform,
                                 natural, naturalRate, confidence);
    }

    bool IsCounts() const;
    UINT ChosenNatural() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 7700).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CProbitData>;
        using Ids = CProbitDlgIds;
        using D = CProbitData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ResponseList, Ids::IDC_RESPONSE_LIST),
            F::List(&D::m_TotalList, Ids::IDC_TOTAL_LIST),
            F::List(&D::m_DoseList, Ids::IDC_DOSE_LIST),
            F::List(&D::m_CovariateList, Ids::IDC_COVARIATE_LIST),
            F::Value(&D::m_ResponseRadio, Ids::IDC_BINARY_RADIO, &GetDefaultResponseRadio),
            F::Value(&D::m_ConstantCheck, Ids::IDC_CONSTANT_CHECK, &GetDefaultConstantCheck),
            F::Value(&D::m_TransformCombo, Ids::IDC_TRANSFORM_COMBO, &GetDefaultTransformCombo),
            F::Value(&D::m_NaturalRadio, Ids::IDC_NO_NATURAL_RADIO, &GetDefaultNaturalRadio),
            F::Value(&D::m_NaturalEdit, Ids::IDC_NATURAL_EDIT, &GetDefaultNaturalEdit).Range(0, 1),
            F::Value(&D::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit).Range(0, 1),
        };
    }

private:
    friend class CProbitDlg; // checks the roles and the natural rate

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ResponseList;
    CGUIArray<CGUIDataVariable> m_TotalList;
    CGUIArray<CGUIDataVariable> m_DoseList;
    CGUIArray<CGUIDataVariable> m_CovariateList;
    int m_ResponseRadio;
    int m_ConstantCheck;
    int m_TransformCombo;
    int m_NaturalRadio;
    CGUIData<double> m_NaturalEdit;
    CGUIData<double> m_ConfidenceEdit;
};
