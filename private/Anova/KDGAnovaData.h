// CAnovaData: the model page of the ANOVA dialog. Which variables are
// dependent variables, factors and covariates, whether missing values of
// the factors form a category, the post hoc choice (kept, never written)
// and the save file; written as the module line, "DEPEND ", "CATEGORY ",
// "COVAR ", an optional save line and "ESTIMATE ".
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/anova.h"

class CAnovaData : public CGUIBaseObj {
    DECLARE_SERIAL(CAnovaData)
public:
    // The save list: dialog 8009 with at most one dependent variable,
    // 8010 with two or more.
    static constexpr UINT kSaveCombo = 1092;
    static constexpr UINT kSaveListSingle = 8009;
    static constexpr UINT kSaveListMultiple = 8010;
    static constexpr UINT kModuleAnova = 12894;

    CAnovaData() { kal::ResetFields(*this); }

    static int GetDefaultMissingValCheck() { return 0; }
    static int GetDefaultPostHocTestCheck() { return 0; }
    static int GetDefaultPostHocTestCombo() { return 1; }
    static int GetDefaultSaveFileCheck() { return 0; }
    static int GetDefaultSaveFileCombo() { return 6; }
    static int GetDefaultSaveFilePartialCombo() { return 4; }
    static CString GetDefaultSaveFileEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& factor, CGUIArray<CGUIDataVariable>& covariate, int& missingValCheck,
               int& postHocTestCheck, int& saveFileCheck, int& postHocTestCombo, int& saveFileCombo,
               CString& saveFileEdit) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, factor, covariate, missingValCheck, postHocTestCheck,
                                  saveFileCheck, postHocTestCombo, saveFileCombo, saveFileEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& factor, const CGUIArray<CGUIDataVariable>& covariate,
               int missingValCheck, int postHocTestCheck, int saveFileCheck, int postHocTestCombo, int saveFileCombo,
               const CString& saveFileEdit)
    {
        return kal::CopyFieldsIn(*this, source, dependent, factor, covariate, missingValCheck, postHocTestCheck,
                                 saveFileCheck, postHocTestCombo, saveFileCombo, saveFileEdit);
    }

    int GetDependentVariableListCount() const { return m_DependentList.GetSize(); }
    const CGUIArray<CGUIDataVariable>& GetDependentList() const { return m_DependentList; }
    CGUIArray<CGUIDataVariable> GetFactorList() const { return m_FactorList; }
    CGUIArray<CGUIDataVariable> GetCovariateList() const { return m_CovariateList; }
    int IsFactorVariable(const CString& name) const { return CheckStringPresentinListCtrlArray(m_FactorList, name); }
    int IsFactorVariableGTZero() const { return m_FactorList.GetSize() > 0 ? 1 : 0; }
    // "CATEGORY " and `factors`, then "/ OFF" without factors, else
    // " / REPLACE" and " MISS" when `missing` is set; written by `writer`.
    static CString CategoryLine(const CGUIBaseObj& writer, const CGUIArray<CGUIDataVariable>& factors, int missing);
    // The variables the active data sheet marks categorical, in its order.
    static CGUIArray<CGUIDataVariable> SheetCategoricalVariables();
    // The save list that fits `dependentCount` dependent variables.
    static UINT SaveListFor(int dependentCount) { return dependentCount > 1 ? kSaveListMultiple : kSaveListSingle; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the model page (template 2006)
    // that show them, and their defaults. The post hoc flag and index have
    // no control: the page keeps them as they are.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CAnovaData>;
        using Ids = CAnovaDlgIds;
        return std::tuple{
            F::Source(&CAnovaData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CAnovaData::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&CAnovaData::m_FactorList, Ids::IDC_FACTOR_LIST),
            F::List(&CAnovaData::m_CovariateList, Ids::IDC_COVARIATE_LIST),
            F::Value(&CAnovaData::m_MissingValCheck, Ids::IDC_MISSING_VALUES, &GetDefaultMissingValCheck),
            F::Value(&CAnovaData::m_PostHocTestCheck, 0, &GetDefaultPostHocTestCheck),
            F::Value(&CAnovaData::m_SaveFileCheck, Ids::IDC_SAVE_FILE_CHECK, &GetDefaultSaveFileCheck),
            F::Value(&CAnovaData::m_PostHocTestCombo, 0, &GetDefaultPostHocTestCombo),
            F::Value(&CAnovaData::m_SaveFileCombo, Ids::IDC_SAVE_FILE_COMBO, &GetDefaultSaveFileCombo),
            F::Value(&CAnovaData::m_SaveFileEdit, Ids::IDC_SAVE_FILE_EDIT, &GetDefaultSaveFileEdit)
                .RequiredBy(Ids::IDC_SAVE_FILE_CHECK),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_FactorList;
    CGUIArray<CGUIDataVariable> m_CovariateList;
    int m_MissingValCheck;
    int m_PostHocTestCheck;
    int m_SaveFileCheck;
    int m_PostHocTestCombo;
    int m_SaveFileCombo;
    CString m_SaveFileEdit;
};
