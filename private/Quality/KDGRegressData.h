// CRegressData: a regression control chart: a response monitored through
// its straight-line regression on one predictor (a tool's wear against the
// parts made), with limits about the fitted line, so that a point outside
// them is a case the predictor does not explain. The residual sigma is
// estimated from the fit unless known; the limits are probabilities of a
// prediction or multiples of its standard error, as on the other charts,
// and both bounds left empty give the chart's usual three-sigma limits.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"
#include "private/Quality/KDGControlLimits.h"

#include <limits>

class CRegressData : public CGUIBaseObj {
    DECLARE_SERIAL(CRegressData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The limits radio group: probability, sigma multiples.
    static constexpr UINT kLimitsRadio = 9115;
    static constexpr UINT kItemProbabilityLimits = 9115;
    static constexpr UINT kItemSigmaLimits = 9116;
    static constexpr double kMaxSigmaMultiple = 10;
    static constexpr UINT kMsgSigma = 9134;

    CRegressData() { kal::ResetFields(*this); }

    // The sigma and the bounds start empty: none given.
    static CGUIData<double> GetDefaultNoneGiven() { return kal::quality::NoNumber(); }
    static int GetDefaultLimitsRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& response,
               CGUIArray<CGUIDataVariable>& predictor, CGUIData<double>& sigma, CGUIData<double>& pLower,
               CGUIData<double>& pUpper, CGUIData<double>& sLower, CGUIData<double>& sUpper, int& limits) const
    {
        return kal::CopyFieldsOut(*this, source, response, predictor, sigma, pLower, pUpper, sLower, sUpper, limits);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& response,
               const CGUIArray<CGUIDataVariable>& predictor, const CGUIData<double>& sigma,
               const CGUIData<double>& pLower, const CGUIData<double>& pUpper, const CGUIData<double>& sLower,
               const CGUIData<double>& sUpper, int limits)
    {
        return kal::CopyFieldsIn(*this, source, response, predictor, sigma, pLower, pUpper, sLower, sUpper, limits);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The sigma's lower end is open: the dialog refuses 0 itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRegressData>;
        using Ids = CRegressDlgIds;
        constexpr double kHuge = std::numeric_limits<double>::max();
        return std::tuple{
            F::Source(&CRegressData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CRegressData::m_ResponseVariables, Ids::IDC_RESPONSE_LIST),
            F::List(&CRegressData::m_PredictorVariables, Ids::IDC_PREDICTOR_LIST),
            F::Value(&CRegressData::m_SigmaEdit, Ids::IDC_SIGMA_EDIT, &GetDefaultNoneGiven)
                .Range(0, kHuge, kMsgSigma)
                .Blank(),
            F::Value(&CRegressData::m_PLimitsLowerEdit, Ids::IDC_PLIMITS_LOWER, &GetDefaultNoneGiven)
                .Range(0, 1)
                .Blank(),
            F::Value(&CRegressData::m_PLimitsUpperEdit, Ids::IDC_PLIMITS_UPPER, &GetDefaultNoneGiven)
                .Range(0, 1)
                .Blank(),
            F::Value(&CRegressData::m_SigmaLowerEdit, Ids::IDC_SLIMITS_LOWER, &GetDefaultNoneGiven)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CRegressData::m_SigmaUpperEdit, Ids::IDC_SLIMITS_UPPER, &GetDefaultNoneGiven)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CRegressData::m_LimitsRadio, Ids::IDC_PLIMITS_RADIO, &GetDefaultLimitsRadio),
        };
    }

private:
    friend class CRegressDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_ResponseVariables;
    CGUIArray<CGUIDataVariable> m_PredictorVariables;
    CGUIData<double> m_SigmaEdit;
    CGUIData<double> m_PLimitsLowerEdit;
    CGUIData<double> m_PLimitsUpperEdit;
    CGUIData<double> m_SigmaLowerEdit;
    CGUIData<double> m_SigmaUpperEdit;
    int m_LimitsRadio;
};
