// CHlmLevelsData: the levels page of the hierarchical linear mixed model:
// the dependent variable, the level-2 unit (the groups the cases belong
// to), the predictors measured on each case (level 1) and on each unit
// (level 2), the level-1 predictors whose slopes vary from unit to unit,
// the random intercept, cross-level terms (each random slope crossed with
// each level-2 predictor), the centering of the level-1 predictors and the
// covariance structure of the random effects.
//
// Written as the module line, "MODEL" with the terms of both levels and
// "RANDOM" over the unit; the estimation page ends the analysis.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CHlmLevelsData : public CGUIBaseObj {
    DECLARE_SERIAL(CHlmLevelsData)
public:
    static constexpr UINT kCenterCombo = 8164;
    static constexpr int kCenterLast = 2;

    CHlmLevelsData() { kal::ResetFields(*this); }

    static int GetDefaultInterceptCheck() { return 1; }
    static int GetDefaultCrossLevelCheck() { return 0; }
    static int GetDefaultCenterCombo() { return 0; }
    // Slopes and intercepts of units are rarely independent: unstructured.
    static int GetDefaultCovarianceCombo() { return 1; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& unit, CGUIArray<CGUIDataVariable>& level1,
               CGUIArray<CGUIDataVariable>& level2, CGUIArray<CGUIDataVariable>& slopes, int& intercept,
               int& crossLevel, int& center, int& covariance) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, unit, level1, level2, slopes, intercept, crossLevel, center,
                                  covariance);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& unit, const CGUIArray<CGUIDataVariable>& level1,
               const CGUIArray<CGUIDataVariable>& level2, const CGUIArray<CGUIDataVariable>& slopes, int intercept,
               int crossLevel, int center, int covariance)
    {
        return kal::CopyFieldsIn(*this, source, dependent, unit, level1, level2, slopes, intercept, crossLevel, center,
                                 covariance);
    }

    const CGUIArray<CGUIDataVariable>& GetDependentList() const { return m_DependentList; }
    // The fixed terms: the level-1 predictors, the level-2 predictors, then
    // the cross-level terms slope by slope.
    CGUIArray<CString> Terms() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8140).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CHlmLevelsData>;
        using Ids = CHlmLevelsDlgIds;
        using D = CHlmLevelsData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_UnitList, Ids::IDC_UNIT_LIST),
            F::List(&D::m_Level1List, Ids::IDC_LEVEL1_LIST),
            F::List(&D::m_Level2List, Ids::IDC_LEVEL2_LIST),
            F::List(&D::m_SlopeList, Ids::IDC_SLOPE_LIST),
            F::Value(&D::m_InterceptCheck, Ids::IDC_INTERCEPT_CHECK, &GetDefaultInterceptCheck).Range(0, 1),
            F::Value(&D::m_CrossLevelCheck, Ids::IDC_CROSS_LEVEL_CHECK, &GetDefaultCrossLevelCheck).Range(0, 1),
            F::Value(&D::m_CenterCombo, Ids::IDC_CENTER_COMBO, &GetDefaultCenterCombo).Range(0, kCenterLast),
            F::Value(&D::m_CovarianceCombo, Ids::IDC_COVARIANCE_COMBO, &GetDefaultCovarianceCombo).Range(0, 3),
        };
    }

private:
    friend class CHlmLevelsDlg; // validates what it shows

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_UnitList;
    CGUIArray<CGUIDataVariable> m_Level1List;
    CGUIArray<CGUIDataVariable> m_Level2List;
    CGUIArray<CGUIDataVariable> m_SlopeList;
    int m_InterceptCheck;
    int m_CrossLevelCheck;
    int m_CenterCombo;
    int m_CovarianceCombo;
};
