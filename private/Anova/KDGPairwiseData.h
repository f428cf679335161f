// CPairwiseData: pairwise comparisons of the levels of one factor of the
// last model (see CLastModel): the factor, the dependent variables compared
// (none chosen: all), the method, the error term (empty: the residual), the
// confidence level and whether the output is a table or a matrix. Written
// as the module line of the model's module, "HYPOTHESIS", the "POST" line,
// an optional "ERROR" line and "TEST".
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/glm.h"

class CPairwiseData : public CGUIBaseObj {
    DECLARE_SERIAL(CPairwiseData)
public:
    // Radio groups, named by their first buttons.
    static constexpr UINT kMethodRadio = CPairwiseDlgIds::IDC_LSD;
    static constexpr UINT kOutputRadio = CPairwiseDlgIds::IDC_TABLE;
    static constexpr int kMethodLast = 4;

    CPairwiseData() { kal::ResetFields(*this); }

    static CString GetDefaultFactorCombo() { return {}; }
    static CString GetDefaultErrorTermCombo() { return {}; }
    static int GetDefaultMethodRadio() { return 3; } // Tukey HSD
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(0.95); }
    static int GetDefaultOutputRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent, CString& factor,
               CString& errorTerm, int& method, CGUIData<double>& confidence, int& output) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, factor, errorTerm, method, confidence, output);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CString& factor, const CString& errorTerm, int method, const CGUIData<double>& confidence,
               int output)
    {
        return kal::CopyFieldsIn(*this, source, dependent, factor, errorTerm, method, confidence, output);
    }

    // The command these settings serve (2012 or 2077): the tab settings'
    // dialog id.
    UINT GetTestCommand() const;
    // Brings the choices up to date with `model`: the source list becomes
    // its dependent variables, and chosen dependents, a factor or an error
    // term it no longer has give way (to the first factor, to the residual).
    void FollowModel(const class CLastModel& model);

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the page (template 2150), their
    // defaults and ranges. The factor and the error term are texts chosen
    // from lists the model fills: the page exchanges them itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CPairwiseData>;
        using Ids = CPairwiseDlgIds;
        using D = CPairwiseData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::Value(&D::m_Factor, 0, &GetDefaultFactorCombo),
            F::Value(&D::m_ErrorTerm, 0, &GetDefaultErrorTermCombo),
            F::Value(&D::m_MethodRadio, Ids::IDC_LSD, &GetDefaultMethodRadio).Range(0, kMethodLast),
            F::Value(&D::m_Confidence, Ids::IDC_CONFIDENCE, &GetDefaultConfidenceEdit).Range(0, 1),
            F::Value(&D::m_OutputRadio, Ids::IDC_TABLE, &GetDefaultOutputRadio).Range(0, 1),
        };
    }

private:
    friend class CPairwiseDlg; // exchanges the factor and the error term

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CString m_Factor;
    CString m_ErrorTerm;
    int m_MethodRadio;
    CGUIData<double> m_Confidence;
    int m_OutputRadio;
};
