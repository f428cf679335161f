// CTsqData: the multivariate T² chart: several measurements of each unit
// charted at once by Hotelling's T², the distance of a point (or of a
// subgroup mean) from the process mean in units of the covariance, so that
// correlated characteristics are judged together. The mean vector and the
// covariance matrix are estimated from the data, or known from a reference
// period and typed as matrices; the upper limit is a probability (its usual
// 0.9973 when none is given), and signals may be decomposed into the share
// of each measurement.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"
#include "private/Quality/KDGControlLimits.h"

class CTsqData : public CGUIBaseObj {
    DECLARE_SERIAL(CTsqData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The radio group of the mean and covariance: estimated, known.
    static constexpr UINT kSourceRadio = 9210;
    static constexpr UINT kItemKnown = 9211;

    CTsqData() { kal::ResetFields(*this); }

    static int GetDefaultZero() { return 0; }
    static CString GetDefaultMatrixEdit() { return {}; }
    static CGUIData<double> GetDefaultNoneGiven() { return kal::quality::NoNumber(); }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& measures,
               CGUIArray<CGUIDataVariable>& groups, int& known, CString& mean, CString& covariance,
               CGUIData<double>& pLower, CGUIData<double>& pUpper, int& decompose) const
    {
        return kal::CopyFieldsOut(*this, source, measures, groups, known, mean, covariance, pLower, pUpper, decompose);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& measures,
               const CGUIArray<CGUIDataVariable>& groups, int known, const CString& mean, const CString& covariance,
               const CGUIData<double>& pLower, const CGUIData<double>& pUpper, int decompose)
    {
        return kal::CopyFieldsIn(*this, source, measures, groups, known, mean, covariance, pLower, pUpper, decompose);
    }

    bool IsKnown() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTsqData>;
        using Ids = CTsqDlgIds;
        return std::tuple{
            F::Source(&CTsqData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CTsqData::m_MeasureVariables, Ids::IDC_MEASURE_LIST),
            F::List(&CTsqData::m_GroupVariables, Ids::IDC_GROUP_LIST),
            F::Value(&CTsqData::m_SourceRadio, Ids::IDC_ESTIMATED_RADIO, &GetDefaultZero),
            F::Value(&CTsqData::m_MeanEdit, Ids::IDC_MEAN_EDIT, &GetDefaultMatrixEdit),
            F::Value(&CTsqData::m_CovarianceEdit, Ids::IDC_COVAR_EDIT, &GetDefaultMatrixEdit),
            F::Value(&CTsqData::m_PLimitsLowerEdit, Ids::IDC_PLIMITS_LOWER, &GetDefaultNoneGiven).Range(0, 1).Blank(),
            F::Value(&CTsqData::m_PLimitsUpperEdit, Ids::IDC_PLIMITS_UPPER, &GetDefaultNoneGiven).Range(0, 1).Blank(),
            F::Value(&CTsqData::m_DecomposeCheck, Ids::IDC_DECOMPOSE_CHECK, &GetDefaultZero),
        };
    }

private:
    friend class CTsqDlg; // reads the values it validates

    // " KEYWORD[ rows ]" for a matrix of numbers; nothing for text that is
    // not one (a record the dialog did not check).
    static CString MatrixClause(const CString& keyword, const CString& text);

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_MeasureVariables;
    CGUIArray<CGUIDataVariable> m_GroupVariables;
    int m_SourceRadio;
    CString m_MeanEdit;
    CString m_CovarianceEdit;
    CGUIData<double> m_PLimitsLowerEdit;
    CGUIData<double> m_PLimitsUpperEdit;
    int m_DecomposeCheck;
};
