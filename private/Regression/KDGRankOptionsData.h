// CRankOptionsData: the estimation page of rank regression. The score
// function that turns the ranks of the residuals into the dispersion the
// fit minimises (Wilcoxon, sign, normal scores), for the weighted row the
// scheme that weighs the cases down by their leverage (high-breakdown or
// Mahalanobis weights), the confidence level, and a file for the
// residuals. Written as an optional save line and the "ESTIMATE" line.
//
// One settings class serves the unweighted (2056) and the weighted (2074)
// row; which one it is comes from the dialog id of the tab settings that
// own it (the launch routine sets it), not from the record.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression-models.h"

class CRankOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CRankOptionsData)
public:
    static constexpr UINT kScoresCombo = 7122;
    static constexpr UINT kWeightsCombo = 7124;
    static constexpr UINT kWeightedRow = 2074;

    CRankOptionsData() { kal::ResetFields(*this); }

    // Whether the page serves the weighted row.
    bool IsWeighted() const;

    static int GetDefaultZero() { return 0; }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(1, 0.95, 0.95, 0, 1); }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(int& scores, int& weights, CGUIData<double>& confidence, int& saveCheck, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, scores, weights, confidence, saveCheck, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int scores, int weights, const CGUIData<double>& confidence, int saveCheck, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, scores, weights, confidence, saveCheck, saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 7120).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRankOptionsData>;
        using Ids = CRankOptionsDlgIds;
        return std::tuple{
            F::Value(&CRankOptionsData::m_ScoresCombo, Ids::IDC_SCORES_COMBO, &GetDefaultZero),
            F::Value(&CRankOptionsData::m_WeightsCombo, Ids::IDC_WEIGHTS_COMBO, &GetDefaultZero),
            F::Value(&CRankOptionsData::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit)
                .Range(0, 1),
            F::Value(&CRankOptionsData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultZero),
            F::Value(&CRankOptionsData::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit)
                .RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    int m_ScoresCombo;
    int m_WeightsCombo;
    CGUIData<double> m_ConfidenceEdit;
    int m_SaveCheck;
    CString m_SaveEdit;
};
