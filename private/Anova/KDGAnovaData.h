// CAnovaData: the model page of the ANOVA dialog. Which variables are
// dependent variables, factors and covariates, whether missing values of
// the factors form a category, the post hoc choice (kept, never written)
// and the save file; written as the module line, "DEPEND ", "CATEGORY ",
// "COVAR ", an optional save line and "ESTIMATE ".
#pragma once

#include "framework/GUIBaseObj.h"

class CAnovaData : public CGUIBaseObj {
    DECLARE_SERIAL(CAnovaData)
public:
    // The save list: dialog 8009 with at most one dependent variable,
    // 8010 with two or more.
    static constexpr UINT kSaveCombo = 1092;
    static constexpr UINT kSaveListSingle = 8009;
    static constexpr UINT kSaveListMultiple = 8010;
    static constexpr UINT kModuleAnova = 12894;

    CAnovaData();
    CAnovaData(const CAnovaData&) = default;
    CAnovaData& operator=(const CAnovaData&) = default;

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
               CString& saveFileEdit) const;
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& factor, const CGUIArray<CGUIDataVariable>& covariate,
               int missingValCheck, int postHocTestCheck, int saveFileCheck, int postHocTestCombo, int saveFileCombo,
               const CString& saveFileEdit);

    int GetDependentVariableListCount() const { return m_DependentList.GetSize(); }
    CGUIArray<CGUIDataVariable> GetFactorList() const { return m_FactorList; }
    CGUIArray<CGUIDataVariable> GetCovariateList() const { return m_CovariateList; }
    int IsFactorVariable(const CString& name) const { return CheckStringPresentinListCtrlArray(m_FactorList, name); }
    int IsFactorVariableGTZero() const { return m_FactorList.GetSize() > 0 ? 1 : 0; }
    // The save list that fits `dependentCount` dependent variables.
    static UINT SaveListFor(int dependentCount) { return dependentCount > 1 ? kSaveListMultiple : kSaveListSingle; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

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
