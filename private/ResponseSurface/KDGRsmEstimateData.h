// CRsmEstimateData: the estimation page of the response surface (2063):
// the order of the model (first order, with two-factor interactions, or
// second order), the canonical analysis of a second-order surface, the
// lack-of-fit test and the confidence of the coefficients. Written as the
// "ESTIMATE" line after the factor page's lines.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/rsm.h"

class CRsmEstimateData : public CGUIBaseObj {
    DECLARE_SERIAL(CRsmEstimateData)
public:
    // The order radio group: first order, with interactions, second order.
    static constexpr UINT kOrderRadio = 8731;
    static constexpr UINT kItemLinear = 8731;
    static constexpr UINT kItemInteraction = 8732;
    static constexpr UINT kItemQuadratic = 8733;
    static constexpr UINT kMsgConfidence = 8946;

    CRsmEstimateData() { kal::ResetFields(*this); }

    static int GetDefaultOrderRadio() { return 2; }
    static int GetDefaultOn() { return 1; }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(1, 0.95, 0.95, 0, 1); }

    int GetAll(int& order, int& canonical, int& lackOfFit, CGUIData<double>& confidence) const
    {
        return kal::CopyFieldsOut(*this, order, canonical, lackOfFit, confidence);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int order, int canonical, int lackOfFit, const CGUIData<double>& confidence)
    {
        return kal::CopyFieldsIn(*this, order, canonical, lackOfFit, confidence);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmEstimateData>;
        using Ids = CRsmEstimateDlgIds;
        using D = CRsmEstimateData;
        return std::tuple{
            F::Value(&D::m_OrderRadio, Ids::IDC_LINEAR_RADIO, &GetDefaultOrderRadio),
            F::Value(&D::m_CanonicalCheck, Ids::IDC_CANONICAL_CHECK, &GetDefaultOn).Range(0, 1),
            F::Value(&D::m_LackOfFitCheck, Ids::IDC_LACKFIT_CHECK, &GetDefaultOn).Range(0, 1),
            F::Value(&D::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit)
                .Range(0, 1, kMsgConfidence),
        };
    }

private:
    friend class CRsmEstimateDlg; // reads the values it validates

    int m_OrderRadio;
    int m_CanonicalCheck;
    int m_LackOfFitCheck;
    CGUIData<double> m_ConfidenceEdit;
};
