// CMixRegModelData: the model page of mixed regression: the dependent
// variable, regressors with one coefficient for all groups (fixed) and
// regressors whose coefficients vary from group to group (random), the
// grouping variable, the random intercept and the link (linear for a
// continuous response, logistic for a binary one, ordinal for ordered
// categories). Written as the module line, "MODEL" (the fixed regressors,
// then the random ones, whose average slopes are fixed effects too, and
// the link) and "RANDOM" over the groups.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CMixRegModelData : public CGUIBaseObj {
    DECLARE_SERIAL(CMixRegModelData)
public:
    static constexpr UINT kModuleMixReg = 13002;
    // LINEAR, LOGISTIC, ORDINAL.
    static constexpr UINT kLinkCombo = 8259;
    static constexpr int kLinkLast = 2;

    CMixRegModelData() { kal::ResetFields(*this); }

    static int GetDefaultInterceptCheck() { return 1; }
    static int GetDefaultLinkCombo() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& fixed, CGUIArray<CGUIDataVariable>& random,
               CGUIArray<CGUIDataVariable>& group, int& intercept, int& link) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, fixed, random, group, intercept, link);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& fixed, const CGUIArray<CGUIDataVariable>& random,
               const CGUIArray<CGUIDataVariable>& group, int intercept, int link)
    {
        return kal::CopyFieldsIn(*this, source, dependent, fixed, random, group, intercept, link);
    }

    // Whether the link needs numerical integration (logistic, ordinal).
    bool IsNonLinear() const { return m_LinkCombo != 0; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8240).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixRegModelData>;
        using Ids = CMixRegModelDlgIds;
        using D = CMixRegModelData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_FixedList, Ids::IDC_FIXED_LIST),
            F::List(&D::m_RandomList, Ids::IDC_RANDOM_LIST),
            F::List(&D::m_GroupList, Ids::IDC_GROUP_LIST),
            F::Value(&D::m_InterceptCheck, Ids::IDC_INTERCEPT_CHECK, &GetDefaultInterceptCheck).Range(0, 1),
            F::Value(&D::m_LinkCombo, Ids::IDC_LINK_COMBO, &GetDefaultLinkCombo).Range(0, kLinkLast),
        };
    }

private:
    friend class CMixRegModelDlg; // validates what it shows

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_FixedList;
    CGUIArray<CGUIDataVariable> m_RandomList;
    CGUIArray<CGUIDataVariable> m_GroupList;
    int m_InterceptCheck;
    int m_LinkCombo;
};
