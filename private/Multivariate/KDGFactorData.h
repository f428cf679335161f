// CFactorData: the model page of the factor analysis dialog. The variables
// factored, how the factors are extracted (principal components, iterated
// principal axes or maximum likelihood), whether the correlation or the
// covariance matrix is factored, the number of cases behind a matrix, and a
// file for scores, coefficients or loadings. Written as the module line, an
// optional save line, the "MODEL" line and the "ESTIMATE" line that the
// factors page extends.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "framework/ResourceUtil.h"
#include "ids/factor.h"

#include <climits>

class CFactorData : public CGUIBaseObj {
    DECLARE_SERIAL(CFactorData)
public:
    static constexpr UINT kModuleFactor = 12965;
    static constexpr UINT kSaveCombo = CFactorDlgIds::IDC_SAVE_COMBO;
    // The radio groups, named by their first buttons.
    static constexpr UINT kExtractionRadio = CFactorDlgIds::IDC_PCA_RADIO;
    static constexpr UINT kMatrixRadio = CFactorDlgIds::IDC_CORRELATION_RADIO;

    CFactorData() { kal::ResetFields(*this); }

    static int GetDefaultExtractionRadio() { return 0; }
    static int GetDefaultMatrixRadio() { return 0; }
    static CGUIData<int> GetDefaultCasesEdit() { return CGUIData<int>(0); }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& variables, int& extraction,
               int& matrix, CGUIData<int>& cases, int& saveCheck, int& saveCombo, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, source, variables, extraction, matrix, cases, saveCheck, saveCombo, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& variables, int extraction,
               int matrix, const CGUIData<int>& cases, int saveCheck, int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, source, variables, extraction, matrix, cases, saveCheck, saveCombo, saveEdit);
    }

    // The radio button of the extraction chosen.
    UINT GetExtraction() const { return CRadioUtil::GetRadioItem(kExtractionRadio, m_ExtractionRadio); }
    // Whether the extraction iterates (principal axes, maximum likelihood).
    static bool IsIterative(UINT extraction)
    {
        return extraction == CFactorDlgIds::IDC_IPA_RADIO || extraction == CFactorDlgIds::IDC_MLA_RADIO;
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the model page (template
    // 6500).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CFactorData>;
        using Ids = CFactorDlgIds;
        return std::tuple{
            F::Source(&CFactorData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CFactorData::m_VariableList, Ids::IDC_VARIABLE_LIST),
            F::Value(&CFactorData::m_ExtractionRadio, Ids::IDC_PCA_RADIO, &GetDefaultExtractionRadio),
            F::Value(&CFactorData::m_MatrixRadio, Ids::IDC_CORRELATION_RADIO, &GetDefaultMatrixRadio),
            F::Value(&CFactorData::m_CasesEdit, Ids::IDC_CASES, &GetDefaultCasesEdit).Range(0, INT_MAX),
            F::Value(&CFactorData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&CFactorData::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
            F::Value(&CFactorData::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CFactorDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_VariableList;
    int m_ExtractionRadio;
    int m_MatrixRadio;
    CGUIData<int> m_CasesEdit;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};
