// CSurvivalData: the model page shared by the survival analyses. The
// survival time, the censoring variable with the code of its censored cases,
// an entry time (cases observed only from some time on), a stratum variable,
// the covariates of a regression model and the save file. Written as the
// module line, "MODEL" and an optional save line; the second page of each
// dialog writes the estimation lines after them. The analysis it serves is
// fixed by the dialog that owns it (see CSurvivalModelData): nonparametric
// estimates have no covariates.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/survival.h"

#include <climits>

enum class SurvivalKind { Regression, Nonparametric };

class CSurvivalData : public CGUIBaseObj {
    DECLARE_SERIAL(CSurvivalData)
public:
    static constexpr UINT kModuleSurvival = 13010;
    static constexpr UINT kSaveCombo = 8619;
    static constexpr int kSaveComboLast = 3;

    explicit CSurvivalData(SurvivalKind kind = SurvivalKind::Regression) : m_Kind(kind) { kal::ResetFields(*this); }

    SurvivalKind GetKind() const { return m_Kind; }
    bool HasStrata() const { return !m_StrataList.IsEmpty(); }

    static CGUIData<int> GetDefaultCodeEdit() { return CGUIData<int>(1, 0, 0, 0, 1); }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& time,
               CGUIArray<CGUIDataVariable>& censor, CGUIArray<CGUIDataVariable>& entry,
               CGUIArray<CGUIDataVariable>& strata, CGUIArray<CGUIDataVariable>& covariates, CGUIData<int>& code,
               int& save, int& saveCombo, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, time, censor, entry, strata, covariates, code, save, saveCombo,
                                  saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& time,
               const CGUIArray<CGUIDataVariable>& censor, const CGUIArray<CGUIDataVariable>& entry,
               const CGUIArray<CGUIDataVariable>& strata, const CGUIArray<CGUIDataVariable>& covariates,
               const CGUIData<int>& code, int save, int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, time, censor, entry, strata, covariates, code, save, saveCombo,
                                 saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; the roles' variables it no
    // longer has leave their lists.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSurvivalData>;
        using Ids = CSurvivalDlgIds;
        using D = CSurvivalData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_TimeList, Ids::IDC_TIME_LIST),
            F::List(&D::m_CensorList, Ids::IDC_CENSOR_LIST),
            F::List(&D::m_EntryList, Ids::IDC_ENTRY_LIST),
            F::List(&D::m_StrataList, Ids::IDC_STRATA_LIST),
            F::List(&D::m_CovariateList, Ids::IDC_COVARIATE_LIST),
            F::Value(&D::m_CodeEdit, Ids::IDC_CODE_EDIT, &GetDefaultCodeEdit).Range(INT_MIN, INT_MAX),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck).Range(0, 1),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo).Range(0, kSaveComboLast),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CSurvivalDlg; // reads the lists it validates

    SurvivalKind m_Kind;
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_TimeList;
    CGUIArray<CGUIDataVariable> m_CensorList;
    CGUIArray<CGUIDataVariable> m_EntryList;
    CGUIArray<CGUIDataVariable> m_StrataList;
    CGUIArray<CGUIDataVariable> m_CovariateList;
    CGUIData<int> m_CodeEdit;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};

// The model page's settings as one dialog owns them: the analysis is part
// of the type, so a reset or a default-constructed copy keeps it.
template <SurvivalKind Kind>
class CSurvivalModelData : public CSurvivalData {
public:
    CSurvivalModelData() : CSurvivalData(Kind) {}
};
