// CHypPairwiseData: the pairwise hypothesis matrix of one factor of the
// last model (CLastModel): every pair of its levels is one row of a
// contrast, tested jointly against the residual or a term of the model.
// The dialog serves 2011 (general linear model) and 2027 (multivariate
// analysis of variance, a general linear model with several dependent
// variables), each with settings of its own. Written as the hypothesis
// lines are: module, "HYPOTHESIS", "EFFECT", "CONTRAST [ ... ]", an
// optional "ERROR" and "TEST".
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/glm.h"
#include "private/Anova/KDGMatrixText.h"

class CLastModel;

class CHypPairwiseData : public CGUIBaseObj {
    DECLARE_SERIAL(CHypPairwiseData)
public:
    static constexpr int kMinLevels = 2;
    static constexpr int kMaxLevels = 20;

    CHypPairwiseData() { kal::ResetFields(*this); }

    static CString GetDefaultFactorCombo() { return {}; }
    static CGUIData<int> GetDefaultLevelsEdit() { return CGUIData<int>(3); }
    static CString GetDefaultErrorTermCombo() { return {}; }

    int GetAll(CString& factor, CGUIData<int>& levels, CString& errorTerm) const
    {
        return kal::CopyFieldsOut(*this, factor, levels, errorTerm);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CString& factor, const CGUIData<int>& levels, const CString& errorTerm)
    {
        return kal::CopyFieldsIn(*this, factor, levels, errorTerm);
    }

    // The rows (1 -1 0), (1 0 -1), (0 1 -1), ... of `levels` levels.
    static CMatrixText::Rows PairwiseRows(int levels);
    // A factor or error term the model no longer has gives way (to its
    // first factor, to the residual).
    void FollowModel(const CLastModel& model);

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The dialog's controls (template 2240); the factor and the error term
    // are chosen from the model's lists and exchanged by the dialog.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CHypPairwiseData>;
        using D = CHypPairwiseData;
        return std::tuple{
            F::Value(&D::m_Factor, 0, &GetDefaultFactorCombo),
            F::Value(&D::m_LevelsEdit, CHypPairwiseDlgIds::IDC_LEVELS, &GetDefaultLevelsEdit)
                .Range(kMinLevels, kMaxLevels),
            F::Value(&D::m_ErrorTerm, 0, &GetDefaultErrorTermCombo),
        };
    }

private:
    friend class CHypPairwiseDlg;

    CString m_Factor;
    CGUIData<int> m_LevelsEdit;
    CString m_ErrorTerm;
};
