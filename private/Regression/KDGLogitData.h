// CLogitData: the model page of the logistic regression dialog. The
// dependent, independent and conditional variables, the constant, the save
// file and the confidence level of a discrete choice model; written as the
// module line "LOGIT", the "MODEL" line (conditional terms before "; "), an
// optional save line and, while the choice-sets page is in use, the
// "ESTIMATE" line with its confidence. The estimation page joins that line
// or writes its own.
//
// The two enable flags and the confidence state are what the page showed at
// its last OK: a constant or a save check that was disabled writes nothing,
// and a confidence state of 1 (the edit out of use) suppresses the
// confidence clause.
//
// GetCondforCatnString(name) answers whether `name` may appear on the
// categories page's "CATEGORY" line: 1 when it is one of the model's
// independent variables, else 0. The categories page offers, keeps and
// writes only such variables.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logit.h"

class CLogitData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitData)
public:
    static constexpr UINT kModuleLogit = 12914;
    static constexpr UINT kSaveCombo = 2697;

    CLogitData() { kal::ResetFields(*this); }

    static int GetDefaultConstantCheck() { return 1; }
    static int GetDefaultSaveFileCheck() { return 0; }
    static int GetDefaultConstantCheckEnable() { return 1; }
    static int GetDefaultSaveFileCheckEnable() { return 1; }
    static CString GetDefaultSaveFileEdit() { return {}; }
    static int GetDefaultSaveCombo() { return 0; }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(0.95); }
    static int GetDefaultConfiState() { return 0; }
    static int GetDefaultSetsPresent() { return 0; }

    // Every member out, but the save combo in: the member takes the
    // caller's value and the caller's variable keeps it. Whoever needs the
    // stored save combo reads GetSaveCombo.
    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& independent, CGUIArray<CGUIDataVariable>& conditional, int& constantCheck,
               int& saveFileCheck, int& constantCheckEnable, int& saveFileCheckEnable, CString& saveFile,
               int& saveCombo, CGUIData<double>& confidence, int& confiState, int& setsPresent);
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& independent, const CGUIArray<CGUIDataVariable>& conditional,
               int constantCheck, int saveFileCheck, int constantCheckEnable, int saveFileCheckEnable,
               const CString& saveFile, int saveCombo, const CGUIData<double>& confidence, int confiState,
               int setsPresent)
    {
        return kal::CopyFieldsIn(*this, source, dependent, independent, conditional, constantCheck, saveFileCheck,
                                 constantCheckEnable, saveFileCheckEnable, saveFile, saveCombo, confidence, confiState,
                                 setsPresent);
    }

    const CGUIArray<CGUIDataVariable>& GetListOfVariablesList() const { return m_SourceList; }
    const CGUIArray<CGUIDataVariable>& GetDependentVariableList() const { return m_DependentList; }
    const CGUIArray<CGUIDataVariable>& GetIndependentVariableList() const { return m_IndependentList; }
    const CGUIArray<CGUIDataVariable>& GetConditionalVariableList() const { return m_ConditionalList; }
    int GetConstantCheck() const { return m_ConstantCheck; }
    int GetSaveCombo() const { return m_SaveCombo; }
    void SetSaveCombo(int index) { m_SaveCombo = index; }
    int GetSetsPresent() const { return m_SetsPresent; }
    void SetSetsPresent(int present) { m_SetsPresent = present; }
    // What the page showed at OK: whether the constant and save checks were
    // enabled, and whether the confidence edit was out of use.
    void SetControlStates(int constantCheckEnable, int saveFileCheckEnable, int confiState);
    int GetCondforCatnString(CString name) const;
    // Puts `line` before the last "MODEL" line of `list` (the categories and
    // choice sets are declared before the model), or at the end when there
    // is none.
    static void InsertBeforeModelLine(CLIST<CCmdInfo>& list, const CString& line);
    // Whether the host has a valid data sheet open, whose variables the
    // pages' lists follow.
    static bool IsSheetOpen();

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the model page (template 2680)
    // that show them, their defaults and ranges. The enable flags, the
    // confidence state and sets present have no control of their own.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitData>;
        using Ids = CLogitDlgIds;
        using D = CLogitData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_IndependentList, Ids::IDC_INDEPENDENT_LIST),
            F::List(&D::m_ConditionalList, Ids::IDC_CONDITIONAL_LIST),
            F::Value(&D::m_ConstantCheck, Ids::IDC_CONSTANT, &GetDefaultConstantCheck),
            F::Value(&D::m_SaveFileCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveFileCheck),
            F::Value(&D::m_ConstantCheckEnable, 0, &GetDefaultConstantCheckEnable),
            F::Value(&D::m_SaveFileCheckEnable, 0, &GetDefaultSaveFileCheckEnable),
            F::Value(&D::m_SaveFileEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveFileEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
            F::Value(&D::m_Confidence, Ids::IDC_CONFIDENCE, &GetDefaultConfidenceEdit).Range(0, 1),
            F::Value(&D::m_ConfiState, 0, &GetDefaultConfiState),
            F::Value(&D::m_SetsPresent, 0, &GetDefaultSetsPresent),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_IndependentList;
    CGUIArray<CGUIDataVariable> m_ConditionalList;
    int m_ConstantCheck;
    int m_SaveFileCheck;
    int m_ConstantCheckEnable;
    int m_SaveFileCheckEnable;
    CString m_SaveFileEdit;
    int m_SaveCombo;
    CGUIData<double> m_Confidence;
    int m_ConfiState;
    int m_SetsPresent;
};
