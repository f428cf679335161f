// CRdiscrimData: the robust discriminant analysis (command 2022): the roles,
// priors, classification and save file of the discriminant analysis (see
// KDGDiscrimRoles.h), with each group's mean and covariance matrix
// estimated robustly: by the minimum covariance determinant, which leaves
// a trimming fraction of the cases out, or by an S-estimate of a given
// breakdown point. The robust estimate joins the "MODEL" line; the
// functions are estimated completely by "ESTIMATE".
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/discrim.h"
#include "private/Multivariate/KDGDiscrimRoles.h"

class CRdiscrimData : public CGUIBaseObj {
    DECLARE_SERIAL(CRdiscrimData)
public:
    static constexpr UINT kPriorsRadio = CRdiscrimDlgIds::IDC_PRIORS_EQUAL;
    static constexpr UINT kMethodRadio = CRdiscrimDlgIds::IDC_MCD;
    static constexpr int kSaveComboLast = 5;
    static constexpr double kMaxFraction = 0.5;
    static constexpr double kMinBreakdown = 0.05;

    CRdiscrimData() { kal::ResetFields(*this); }

    static int GetDefaultQuadraticCheck() { return 0; }
    static int GetDefaultMethodRadio() { return 0; }
    static CGUIData<double> GetDefaultTrimEdit() { return CGUIData<double>(0.25); }
    static CGUIData<double> GetDefaultBreakdownEdit() { return CGUIData<double>(0.5); }
    static int GetDefaultPriorsRadio() { return 0; }
    static CString GetDefaultPriorsEdit() { return {}; }
    static int GetDefaultCrossValidateCheck() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& group,
               CGUIArray<CGUIDataVariable>& predictors, int& quadratic, int& method, CGUIData<double>& trim,
               CGUIData<double>& breakdown, int& priors, CString& priorsText, int& crossValidate, int& saveCheck,
               int& saveCombo, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, group, predictors, quadratic, method, trim, breakdown, priors,
                                  priorsText, crossValidate, saveCheck, saveCombo, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& group,
               const CGUIArray<CGUIDataVariable>& predictors, int quadratic, int method, const CGUIData<double>& trim,
               const CGUIData<double>& breakdown, int priors, const CString& priorsText, int crossValidate,
               int saveCheck, int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, group, predictors, quadratic, method, trim, breakdown, priors,
                                 priorsText, crossValidate, saveCheck, saveCombo, saveEdit);
    }

    const CGUIArray<CGUIDataVariable>& GetGroupList() const { return m_GroupList; }
    const CGUIArray<CGUIDataVariable>& GetPredictorList() const { return m_PredictorList; }
    kal::discrim::Priors GetPriors() const;
    const CString& GetPriorsText() const { return m_PriorsEdit; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; roles it no longer has go.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRdiscrimData>;
        using Ids = CRdiscrimDlgIds;
        using D = CRdiscrimData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_GroupList, Ids::IDC_GROUP_LIST),
            F::List(&D::m_PredictorList, Ids::IDC_PREDICTOR_LIST),
            F::Value(&D::m_QuadraticCheck, Ids::IDC_QUADRATIC, &GetDefaultQuadraticCheck),
            F::Value(&D::m_MethodRadio, Ids::IDC_MCD, &GetDefaultMethodRadio),
            F::Value(&D::m_TrimEdit, Ids::IDC_TRIM_EDIT, &GetDefaultTrimEdit).Range(0, kMaxFraction),
            F::Value(&D::m_BreakdownEdit, Ids::IDC_BREAKDOWN_EDIT, &GetDefaultBreakdownEdit)
                .Range(kMinBreakdown, kMaxFraction),
            F::Value(&D::m_PriorsRadio, Ids::IDC_PRIORS_EQUAL, &GetDefaultPriorsRadio),
            F::Value(&D::m_PriorsEdit, Ids::IDC_PRIORS_EDIT, &GetDefaultPriorsEdit),
            F::Value(&D::m_CrossValidateCheck, Ids::IDC_CROSS_VALIDATE, &GetDefaultCrossValidateCheck),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo).Range(0, kSaveComboLast),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_GroupList;
    CGUIArray<CGUIDataVariable> m_PredictorList;
    int m_QuadraticCheck;
    int m_MethodRadio;
    CGUIData<double> m_TrimEdit;
    CGUIData<double> m_BreakdownEdit;
    int m_PriorsRadio;
    CString m_PriorsEdit;
    int m_CrossValidateCheck;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};
