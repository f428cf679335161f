// CLogitPostData: what to compute from the last logistic model (see
// CLastLogitModel): predicted probabilities, at the means of the regressors
// or at values the user gives for some of them; marginal effects, at the
// means or averaged over the cases; and the classification table of the
// cases by a cut-off of the predicted probability. Written after the module
// line as "PREDICT", "MARGINS" and "CLASSIFY" lines, one per result asked
// for.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logitpost.h"

class CLogitPostData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitPostData)
public:
    static constexpr UINT kModuleLogit = 12914;
    // Marginal effects: at the means (0), averaged over the cases (1).
    static constexpr UINT kMarginsRadio = 7507;

    CLogitPostData() { kal::ResetFields(*this); }

    static int GetDefaultPredictCheck() { return 1; }
    static CString GetDefaultAtEdit() { return {}; }
    static int GetDefaultMarginsCheck() { return 0; }
    static int GetDefaultMarginsRadio() { return 0; }
    static int GetDefaultClassifyCheck() { return 1; }
    static CGUIData<double> GetDefaultCutEdit() { return CGUIData<double>(0.5); }

    int GetAll(int& predict, CString& at, int& margins, int& marginsKind, int& classify, CGUIData<double>& cut) const
    {
        return kal::CopyFieldsOut(*this, predict, at, margins, marginsKind, classify, cut);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int predict, const CString& at, int margins, int marginsKind, int classify, const CGUIData<double>& cut)
    {
        return kal::CopyFieldsIn(*this, predict, at, margins, marginsKind, classify, cut);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The dialog's controls (template 7500). The values are kept as the
    // dialog wrote them back at OK: "X = 20, X2 = 5".
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitPostData>;
        using Ids = CLogitPostDlgIds;
        using D = CLogitPostData;
        return std::tuple{
            F::Value(&D::m_PredictCheck, Ids::IDC_PREDICT_CHECK, &GetDefaultPredictCheck),
            F::Value(&D::m_AtEdit, Ids::IDC_AT_EDIT, &GetDefaultAtEdit),
            F::Value(&D::m_MarginsCheck, Ids::IDC_MARGINS_CHECK, &GetDefaultMarginsCheck),
            F::Value(&D::m_MarginsRadio, Ids::IDC_ATMEANS_RADIO, &GetDefaultMarginsRadio),
            F::Value(&D::m_ClassifyCheck, Ids::IDC_CLASSIFY_CHECK, &GetDefaultClassifyCheck),
            F::Value(&D::m_CutEdit, Ids::IDC_CUT_EDIT, &GetDefaultCutEdit).Range(0, 1),
        };
    }

private:
    friend class CLogitPostDlg; // reads and rewrites what it validates

    int m_PredictCheck;
    CString m_AtEdit;
    int m_MarginsCheck;
    int m_MarginsRadio;
    int m_ClassifyCheck;
    CGUIData<double> m_CutEdit;
};
