// CMixedRandomData: the random part of a linear mixed model: the random
// intercept, the variables whose slopes vary at random, the subject they
// vary over and the covariance structure of the random effects. Written as
// one "RANDOM" line after the model page's lines; the hierarchical model
// writes the same line from its levels page (RandomLine).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CMixedRandomData : public CGUIBaseObj {
    DECLARE_SERIAL(CMixedRandomData)
public:
    // The covariance structures: VC, UN, CS, AR1.
    static constexpr UINT kCovarianceCombo = 8111;
    static constexpr int kCovarianceLast = 3;

    CMixedRandomData() { kal::ResetFields(*this); }

    static int GetDefaultInterceptCheck() { return 1; }
    static int GetDefaultCovarianceCombo() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& random,
               CGUIArray<CGUIDataVariable>& subject, int& intercept, int& covariance) const
    {
        return kal::CopyFieldsOut(*this, source, random, subject, intercept, covariance);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& random,
               const CGUIArray<CGUIDataVariable>& subject, int intercept, int covariance)
    {
        return kal::CopyFieldsIn(*this, source, random, subject, intercept, covariance);
    }

    // "RANDOM INTERCEPT+X / SUBJECT = ID TYPE = UN": the intercept while
    // asked for, the slopes joined by "+", then the subject and the
    // structure. Empty when there is no random effect at all.
    static CString RandomLine(const CGUIBaseObj& writer, int intercept, const CGUIArray<CGUIDataVariable>& slopes,
                              const CGUIArray<CGUIDataVariable>& subject, int covariance);

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8100).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedRandomData>;
        using Ids = CMixedRandomDlgIds;
        using D = CMixedRandomData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_RandomList, Ids::IDC_RANDOM_LIST),
            F::List(&D::m_SubjectList, Ids::IDC_SUBJECT_LIST),
            F::Value(&D::m_InterceptCheck, Ids::IDC_INTERCEPT_CHECK, &GetDefaultInterceptCheck).Range(0, 1),
            F::Value(&D::m_CovarianceCombo, Ids::IDC_COVARIANCE_COMBO, &GetDefaultCovarianceCombo)
                .Range(0, kCovarianceLast),
        };
    }

private:
    friend class CMixedRandomDlg; // validates what it shows

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_RandomList;
    CGUIArray<CGUIDataVariable> m_SubjectList;
    int m_InterceptCheck;
    int m_CovarianceCombo;
};
