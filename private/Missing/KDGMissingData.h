// CMissingData: the variables page of the missing-value analysis. The
// variables whose gaps are tabled and estimated, an optional grouping
// variable, the patterns table with the share of cases below which patterns
// are pooled, and the save file for the data with the gaps filled. Written
// as the module line (the engine of the method the estimation page chose),
// "MODEL", "GROUP", "PATTERN" and an optional save line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/missing.h"

class CMissingData : public CGUIBaseObj {
    DECLARE_SERIAL(CMissingData)
public:
    static constexpr UINT kSaveCombo = 3059;
    // The saved kind that keeps the data sheet's other variables.
    static constexpr UINT kItemWithData = 12201;
    static constexpr int kSaveComboLast = 1;
    static constexpr double kMaxCutoff = 100;

    CMissingData() { kal::ResetFields(*this); }

    static int GetDefaultPatternCheck() { return 1; }
    static CGUIData<double> GetDefaultCutoffEdit() { return CGUIData<double>(1, 0.0, 0.0, 0, 1); }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& variables,
               CGUIArray<CGUIDataVariable>& group, int& pattern, CGUIData<double>& cutoff, int& save, int& saveCombo,
               CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, variables, group, pattern, cutoff, save, saveCombo, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& variables,
               const CGUIArray<CGUIDataVariable>& group, int pattern, const CGUIData<double>& cutoff, int save,
               int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, variables, group, pattern, cutoff, save, saveCombo, saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; the variables and the
    // grouping variable it no longer has leave their lists.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMissingData>;
        using Ids = CMissingDlgIds;
        using D = CMissingData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_VariableList, Ids::IDC_VARIABLE_LIST),
            F::List(&D::m_GroupList, Ids::IDC_GROUP_LIST),
            F::Value(&D::m_PatternCheck, Ids::IDC_PATTERN_CHECK, &GetDefaultPatternCheck).Range(0, 1),
            F::Value(&D::m_CutoffEdit, Ids::IDC_CUTOFF_EDIT, &GetDefaultCutoffEdit).Range(0, kMaxCutoff),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck).Range(0, 1),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo).Range(0, kSaveComboLast),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CMissingDlg; // reads the lists it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_VariableList;
    CGUIArray<CGUIDataVariable> m_GroupList;
    int m_PatternCheck;
    CGUIData<double> m_CutoffEdit;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};
