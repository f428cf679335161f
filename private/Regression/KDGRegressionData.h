// CRegressionData: the model page of the linear regression dialog. The
// dependent and independent variables, whether the model has a constant,
// the number of cases behind a matrix, and the save file; written as the
// module line ("EXIT" first when the quality-control module is current),
// the "MODEL" line and an optional save line. The estimation lines come from
// the estimation page.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression.h"

#include <climits>

class CRegressionData : public CGUIBaseObj {
    DECLARE_SERIAL(CRegressionData)
public:
    static constexpr UINT kSaveCombo = 4186;

    CRegressionData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultCasesEdit() { return CGUIData<int>(0); }
    static int GetDefaultConstantCheckEnable() { return 1; }
    static CGUIDataWnd<int> GetDefaultIncludeConstantCheck() { return {1, GetDefaultConstantCheckEnable()}; }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 6; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& independent, CGUIData<int>& cases, CGUIDataWnd<int>& includeConstant,
               int& saveCheck, int& saveCombo, CString& saveEdit, int& stateWord) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, independent, cases, includeConstant, saveCheck, saveCombo,
                                  saveEdit, stateWord);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& independent, const CGUIData<int>& cases,
               const CGUIDataWnd<int>& includeConstant, int saveCheck, int saveCombo, const CString& saveEdit,
               int stateWord)
    {
        return kal::CopyFieldsIn(*this, source, dependent, independent, cases, includeConstant, saveCheck, saveCombo,
                                 saveEdit, stateWord);
    }

    CGUIDataWnd<int> GetConstantCheck() const { return m_IncludeConstantCheck; }
    CGUIArray<CGUIDataVariable> GetIndependentVariableList() const { return m_IndependentList; }
    int GetDependentVariableListCount() const { return m_DependentList.GetSize(); }
    int GetIndependentVariableListCount() const { return m_IndependentList.GetSize(); }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the model page (template 4100)
    // that show them, and their defaults. The state word has no control.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRegressionData>;
        using Ids = CRegressionDlgIds;
        return std::tuple{
            F::Source(&CRegressionData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CRegressionData::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&CRegressionData::m_IndependentList, Ids::IDC_INDEPENDENT_LIST),
            F::Value(&CRegressionData::m_CasesEdit, Ids::IDC_CASES, &GetDefaultCasesEdit).Range(0, INT_MAX),
            F::Value(&CRegressionData::m_IncludeConstantCheck, Ids::IDC_INCLUDE_CONSTANT,
                     &GetDefaultIncludeConstantCheck),
            F::Value(&CRegressionData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&CRegressionData::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
            F::Value(&CRegressionData::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit)
                .RequiredBy(Ids::IDC_SAVE_CHECK),
            F::Value(&CRegressionData::m_nStateWord, 0, &InitialStateWord),
        };
    }

private:
    static int InitialStateWord() { return 1; }

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_IndependentList;
    CGUIData<int> m_CasesEdit;
    CGUIDataWnd<int> m_IncludeConstantCheck;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
    // Kept and stored as it is; no line reads it.
    int m_nStateWord;
};
