// CRegModelData: the model page that every regression with one dependent
// variable and a list of regressors shares (ridge, least absolute
// deviations, the robust estimators, M and rank regression, two-stage least
// squares). The dependent variable, the regressors, whether the model has a
// constant, an optional case weight, and the number of cases behind matrix
// data; written as the analysis's module line ("EXIT" first when the
// quality-control module is current) and the "MODEL" line. The analysis's
// own page writes the estimation line after it.
//
// The module is the analysis's, fixed by the tab settings that own the page
// (see CRegModelDataFor). Matrix data are written as the linear regression
// writes them: no constant, no case weight, the number of cases.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression-models.h"

#include <climits>

class CRegModelData : public CGUIBaseObj {
    DECLARE_SERIAL(CRegModelData)
public:
    explicit CRegModelData(UINT moduleId = 0) : m_nModuleId(moduleId) { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultCasesEdit() { return CGUIData<int>(0); }
    static CGUIDataWnd<int> GetDefaultIncludeConstantCheck() { return {1, 1}; }

    UINT GetModuleId() const { return m_nModuleId; }
    const CGUIArray<CGUIDataVariable>& GetDependentList() const { return m_DependentList; }
    const CGUIArray<CGUIDataVariable>& GetRegressorList() const { return m_RegressorList; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& regressors, CGUIArray<CGUIDataVariable>& weight, CGUIData<int>& cases,
               CGUIDataWnd<int>& includeConstant) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, regressors, weight, cases, includeConstant);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& regressors, const CGUIArray<CGUIDataVariable>& weight,
               const CGUIData<int>& cases, const CGUIDataWnd<int>& includeConstant)
    {
        return kal::CopyFieldsIn(*this, source, dependent, regressors, weight, cases, includeConstant);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the model page (template 7000).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRegModelData>;
        using Ids = CRegModelDlgIds;
        return std::tuple{
            F::Source(&CRegModelData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CRegModelData::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&CRegModelData::m_RegressorList, Ids::IDC_REGRESSOR_LIST),
            F::List(&CRegModelData::m_WeightList, Ids::IDC_WEIGHT_LIST),
            F::Value(&CRegModelData::m_CasesEdit, Ids::IDC_CASES, &GetDefaultCasesEdit).Range(0, INT_MAX),
            F::Value(&CRegModelData::m_IncludeConstantCheck, Ids::IDC_INCLUDE_CONSTANT,
                     &GetDefaultIncludeConstantCheck),
        };
    }

private:
    friend class CRegModelDlg; // reads the lists it validates

    // Part of the owner's type, not of the record.
    UINT m_nModuleId;

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_RegressorList;
    CGUIArray<CGUIDataVariable> m_WeightList;
    CGUIData<int> m_CasesEdit;
    CGUIDataWnd<int> m_IncludeConstantCheck;
};

// The model page as one analysis owns it: its module (a string id of the
// module's name) is part of the type, so a reset or a default-constructed
// copy keeps it.
template <UINT Module>
class CRegModelDataFor : public CRegModelData {
public:
    CRegModelDataFor() : CRegModelData(Module) {}
};
