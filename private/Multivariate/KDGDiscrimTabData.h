// The discriminant analysis (command 2021): a tab of the model page and the
// linear regression's estimation page under the discriminant owner 2211.
//
// CDiscrimData: the model page: the grouping variable and the predictors,
// linear or quadratic functions, the priors, a cross-validated
// classification and the save file (see KDGDiscrimRoles.h). It writes the
// module, model, priors and save lines; the estimation page follows with
// "ESTIMATE" or the stepwise lines.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "framework/GUITabData.h"
#include "ids/discrim.h"
#include "private/Multivariate/KDGDiscrimRoles.h"
#include "private/Regression/KDGRegressionOptionsData.h"

class CDiscrimData : public CGUIBaseObj {
    DECLARE_SERIAL(CDiscrimData)
public:
    static constexpr UINT kPriorsRadio = CDiscrimDlgIds::IDC_PRIORS_EQUAL;
    static constexpr int kSaveComboLast = 5;

    CDiscrimData() { kal::ResetFields(*this); }

    static int GetDefaultQuadraticCheck() { return 0; }
    static int GetDefaultPriorsRadio() { return 0; }
    static CString GetDefaultPriorsEdit() { return {}; }
    static int GetDefaultCrossValidateCheck() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& group,
               CGUIArray<CGUIDataVariable>& predictors, int& quadratic, int& priors, CString& priorsText,
               int& crossValidate, int& saveCheck, int& saveCombo, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, group, predictors, quadratic, priors, priorsText, crossValidate,
                                  saveCheck, saveCombo, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& group,
               const CGUIArray<CGUIDataVariable>& predictors, int quadratic, int priors, const CString& priorsText,
               int crossValidate, int saveCheck, int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, group, predictors, quadratic, priors, priorsText, crossValidate,
                                 saveCheck, saveCombo, saveEdit);
    }

    const CGUIArray<CGUIDataVariable>& GetGroupList() const { return m_GroupList; }
    const CGUIArray<CGUIDataVariable>& GetPredictorList() const { return m_PredictorList; }
    kal::discrim::Priors GetPriors() const;
    const CString& GetPriorsText() const { return m_PriorsEdit; }
    bool IsQuadratic() const { return m_QuadraticCheck != 0; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; roles it no longer has go.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CDiscrimData>;
        using Ids = CDiscrimDlgIds;
        using D = CDiscrimData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_GroupList, Ids::IDC_GROUP_LIST),
            F::List(&D::m_PredictorList, Ids::IDC_PREDICTOR_LIST),
            F::Value(&D::m_QuadraticCheck, Ids::IDC_QUADRATIC, &GetDefaultQuadraticCheck),
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
    int m_PriorsRadio;
    CString m_PriorsEdit;
    int m_CrossValidateCheck;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};

class CDiscrimTabData : public CGUITabData {
    DECLARE_SERIAL(CDiscrimTabData)
public:
    CDiscrimTabData() { LinkPages(); }
    CDiscrimTabData(const CDiscrimTabData& other) : CDiscrimTabData() { *this = other; }
    CDiscrimTabData& operator=(const CDiscrimTabData&) = default;

    static CDiscrimData GetDefaultDiscrim() { return CDiscrimData(); }
    static CRegressionOptionsData GetDefaultRegressionOptions() { return CRegressionOptionsData(); }

    CDiscrimData* GetDiscrimData() { return &m_DiscrimData; }
    CRegressionOptionsData* GetRegressionOptionsData() { return &m_RegressionOptionsData; }

    int GetAll(CDiscrimData& model, CRegressionOptionsData& estimation) const
    {
        return kal::CopyFieldsOut(*this, model, estimation);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CDiscrimData& model, const CRegressionOptionsData& estimation)
    {
        return kal::CopyFieldsIn(*this, model, estimation);
    }

    PageList Pages() override { return {&m_DiscrimData, &m_RegressionOptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CDiscrimTabData>;
        return std::tuple{F::Page(&CDiscrimTabData::m_DiscrimData), F::Page(&CDiscrimTabData::m_RegressionOptionsData)};
    }

private:
    CDiscrimData m_DiscrimData;
    CRegressionOptionsData m_RegressionOptionsData;
};
