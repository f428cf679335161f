// CSurvivalNParData: the estimates page of the nonparametric survival
// analysis (2065): product-limit (Kaplan-Meier) estimates or a life table
// with its interval width, the tests that compare the survival of the
// strata, and the confidence of the bands. Written as the "KM" or "LTAB"
// line and, while the model page has a stratum variable, the "TEST" line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/survival.h"

#include <limits>

class CSurvivalNParData : public CGUIBaseObj {
    DECLARE_SERIAL(CSurvivalNParData)
public:
    // The estimates radio group: product-limit, life table.
    static constexpr UINT kEstimatesRadio = 8661;
    static constexpr UINT kItemLifeTable = 8662;
    static constexpr UINT kMsgConfidence = 8684;

    CSurvivalNParData() { kal::ResetFields(*this); }

    static int GetDefaultEstimatesRadio() { return 0; }
    // 0: ten intervals of equal width over the times observed.
    static CGUIData<double> GetDefaultWidthEdit() { return CGUIData<double>(1, 0.0, 0.0, 0, 1); }
    static int GetDefaultLogRankCheck() { return 1; }
    static int GetDefaultOff() { return 0; }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(1, 0.95, 0.95, 0, 1); }

    int GetAll(int& estimates, CGUIData<double>& width, int& logRank, int& breslow, int& tarone, int& peto,
               CGUIData<double>& confidence) const
    {
        return kal::CopyFieldsOut(*this, estimates, width, logRank, breslow, tarone, peto, confidence);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int estimates, const CGUIData<double>& width, int logRank, int breslow, int tarone, int peto,
               const CGUIData<double>& confidence)
    {
        return kal::CopyFieldsIn(*this, estimates, width, logRank, breslow, tarone, peto, confidence);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSurvivalNParData>;
        using Ids = CSurvivalNParDlgIds;
        using D = CSurvivalNParData;
        return std::tuple{
            F::Value(&D::m_EstimatesRadio, Ids::IDC_KM_RADIO, &GetDefaultEstimatesRadio),
            F::Value(&D::m_WidthEdit, Ids::IDC_WIDTH_EDIT, &GetDefaultWidthEdit)
                .Range(0, std::numeric_limits<double>::max())
                .Optional(),
            F::Value(&D::m_LogRankCheck, Ids::IDC_LOGRANK_CHECK, &GetDefaultLogRankCheck).Range(0, 1),
            F::Value(&D::m_BreslowCheck, Ids::IDC_BRESLOW_CHECK, &GetDefaultOff).Range(0, 1),
            F::Value(&D::m_TaroneCheck, Ids::IDC_TARONE_CHECK, &GetDefaultOff).Range(0, 1),
            F::Value(&D::m_PetoCheck, Ids::IDC_PETO_CHECK, &GetDefaultOff).Range(0, 1),
            F::Value(&D::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit)
                .Range(0, 1, kMsgConfidence),
        };
    }

private:
    friend class CSurvivalNParDlg; // reads the values it validates

    // Whether the model page of the same analysis has a stratum variable.
    bool HasStrata() const;

    int m_EstimatesRadio;
    CGUIData<double> m_WidthEdit;
    int m_LogRankCheck;
    int m_BreslowCheck;
    int m_TaroneCheck;
    int m_PetoCheck;
    CGUIData<double> m_ConfidenceEdit;
};
