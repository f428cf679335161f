// CGLMData: the model page of the general linear model. The dependent
// variables, the model's terms (main effects, interactions, nested and
// polynomial terms, see CModelTerms), which variables are categorical and
// whether their missing values form a category, the constant, the number
// of cases behind matrix data and the save file. Written as the module
// line, "MODEL", "CATEGORY" and an optional save line; the estimation
// page writes the estimation lines after them.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/glm.h"

#include <climits>

class CGLMData : public CGUIBaseObj {
    DECLARE_SERIAL(CGLMData)
public:
    static constexpr UINT kModuleGlm = 12906;
    // The linear mixed model's fixed effects are this page under owner
    // 2356: the lines are the same but for the module's name.
    static constexpr UINT kOwnerLinearMixedModel = 2356;
    static constexpr UINT kModuleMixed = 13000;
    // The save list is the linear regression's.
    static constexpr UINT kSaveCombo = 4186;
    static constexpr int kSaveComboLast = 6;
    static constexpr int kMinDegree = 2;
    static constexpr int kMaxDegree = 9;

    CGLMData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultCasesEdit() { return CGUIData<int>(0); }
    static CGUIData<int> GetDefaultDegreeEdit() { return CGUIData<int>(2); }
    static CGUIDataWnd<int> GetDefaultIncludeConstantCheck() { return {1, 1}; }
    static int GetDefaultMissingValCheck() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return kSaveComboLast; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& category, CGUIArray<CString>& terms, CGUIData<int>& degree,
               CGUIData<int>& cases, CGUIDataWnd<int>& includeConstant, int& missingValCheck, int& saveCheck,
               int& saveCombo, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, category, terms, degree, cases, includeConstant,
                                  missingValCheck, saveCheck, saveCombo, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& category, const CGUIArray<CString>& terms,
               const CGUIData<int>& degree, const CGUIData<int>& cases, const CGUIDataWnd<int>& includeConstant,
               int missingValCheck, int saveCheck, int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, dependent, category, terms, degree, cases, includeConstant,
                                 missingValCheck, saveCheck, saveCombo, saveEdit);
    }

    int GetDependentVariableListCount() const { return m_DependentList.GetSize(); }
    const CGUIArray<CGUIDataVariable>& GetDependentList() const { return m_DependentList; }
    const CGUIArray<CGUIDataVariable>& GetCategoryList() const { return m_CategoryList; }
    const CGUIArray<CString>& GetTerms() const { return m_Terms; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; dependent and categorical
    // variables it no longer has leave their lists, and variables it marks
    // categorical join the categorical list. Terms stay as they are: OK
    // names the ones that no longer fit.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the model page (template 2120)
    // that show them, their defaults and ranges. The term list is a list of
    // texts: the page exchanges it itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CGLMData>;
        using Ids = CGLMDlgIds;
        using D = CGLMData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_CategoryList, Ids::IDC_CATEGORY_LIST),
            F::List(&D::m_Terms, Ids::IDC_TERM_LIST),
            F::Value(&D::m_DegreeEdit, Ids::IDC_DEGREE, &GetDefaultDegreeEdit).Range(kMinDegree, kMaxDegree),
            F::Value(&D::m_CasesEdit, Ids::IDC_CASES, &GetDefaultCasesEdit).Range(0, INT_MAX),
            F::Value(&D::m_IncludeConstantCheck, Ids::IDC_INCLUDE_CONSTANT, &GetDefaultIncludeConstantCheck),
            F::Value(&D::m_MissingValCheck, Ids::IDC_MISSING_VALUES, &GetDefaultMissingValCheck).Range(0, 1),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck).Range(0, 1),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo).Range(0, kSaveComboLast),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CGLMDlg; // exchanges the term list itself

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_CategoryList;
    CGUIArray<CString> m_Terms;
    CGUIData<int> m_DegreeEdit;
    CGUIData<int> m_CasesEdit;
    CGUIDataWnd<int> m_IncludeConstantCheck;
    int m_MissingValCheck;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};
