// CHypothesisData: what a hypothesis test of the last model (CLastModel)
// tests: an effect of the model, with no contrast or a difference,
// polynomial or custom contrast of its levels, or linear combinations of
// the model's parameters. The grid rows are the custom contrasts'
// coefficients or the linear combinations. Written as the module line of
// the model's module, "HYPOTHESIS", then "EFFECT" with its "CONTRAST", or
// one "SPECIFY" line per row; the error page ends the test.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/glm.h"

class CHypothesisData : public CGUIBaseObj {
    DECLARE_SERIAL(CHypothesisData)
public:
    static constexpr UINT kKindRadio = CHypothesisDlgIds::IDC_EFFECT_KIND;
    static constexpr UINT kContrastRadio = CHypothesisDlgIds::IDC_CONTRAST_NONE;
    static constexpr int kMaxOrder = 9;

    CHypothesisData() { kal::ResetFields(*this); }

    static int GetDefaultKindRadio() { return 0; }
    static CString GetDefaultEffectCombo() { return {}; }
    static int GetDefaultContrastRadio() { return 0; }
    static CGUIData<int> GetDefaultOrderEdit() { return CGUIData<int>(1); }
    static CGUIArray<CString> GetDefaultRows() { return {}; }

    int GetAll(int& kind, CString& effect, int& contrast, CGUIData<int>& order, CGUIArray<CString>& rows) const
    {
        return kal::CopyFieldsOut(*this, kind, effect, contrast, order, rows);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int kind, const CString& effect, int contrast, const CGUIData<int>& order,
               const CGUIArray<CString>& rows)
    {
        return kal::CopyFieldsIn(*this, kind, effect, contrast, order, rows);
    }

    bool IsSpecify() const;
    bool IsCustomContrast() const;
    // The rows of the hypothesis: the grid's rows while they are in use,
    // -1 while the model decides (an effect with another contrast).
    int HypothesisRowCount() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 2180). The effect is chosen from the
    // model's terms and the rows come from the grid: the page exchanges
    // them itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CHypothesisData>;
        using Ids = CHypothesisDlgIds;
        using D = CHypothesisData;
        return std::tuple{
            F::Value(&D::m_KindRadio, Ids::IDC_EFFECT_KIND, &GetDefaultKindRadio).Range(0, 1),
            F::Value(&D::m_Effect, 0, &GetDefaultEffectCombo),
            F::Value(&D::m_ContrastRadio, Ids::IDC_CONTRAST_NONE, &GetDefaultContrastRadio).Range(0, 3),
            F::Value(&D::m_OrderEdit, Ids::IDC_ORDER, &GetDefaultOrderEdit).Range(1, kMaxOrder),
            F::Value(&D::m_Rows, 0, &GetDefaultRows),
        };
    }

private:
    friend class CHypothesisDlg;

    int m_KindRadio;
    CString m_Effect;
    int m_ContrastRadio;
    CGUIData<int> m_OrderEdit;
    CGUIArray<CString> m_Rows;
};

// CHypothesisErrorData: the error page of a hypothesis test: the D matrix
// (empty: zeros) and the error: the residual, a term of the model or a
// typed matrix. Writes "DMATRIX", "ERROR" and the closing "TEST".
class CHypothesisErrorData : public CGUIBaseObj {
    DECLARE_SERIAL(CHypothesisErrorData)
public:
    static constexpr UINT kErrorRadio = CHypothesisErrorDlgIds::IDC_ERROR_RESIDUAL;

    CHypothesisErrorData() { kal::ResetFields(*this); }

    static CString GetDefaultDMatrixEdit() { return {}; }
    static int GetDefaultErrorRadio() { return 0; }
    static CString GetDefaultErrorTermCombo() { return {}; }
    static CString GetDefaultErrorMatrixEdit() { return {}; }

    int GetAll(CString& dMatrix, int& error, CString& errorTerm, CString& errorMatrix) const
    {
        return kal::CopyFieldsOut(*this, dMatrix, error, errorTerm, errorMatrix);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CString& dMatrix, int error, const CString& errorTerm, const CString& errorMatrix)
    {
        return kal::CopyFieldsIn(*this, dMatrix, error, errorTerm, errorMatrix);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 2200); the error term is chosen from
    // the model's terms and exchanged by the page.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CHypothesisErrorData>;
        using Ids = CHypothesisErrorDlgIds;
        using D = CHypothesisErrorData;
        return std::tuple{
            F::Value(&D::m_DMatrix, Ids::IDC_DMATRIX, &GetDefaultDMatrixEdit),
            F::Value(&D::m_ErrorRadio, Ids::IDC_ERROR_RESIDUAL, &GetDefaultErrorRadio).Range(0, 2),
            F::Value(&D::m_ErrorTerm, 0, &GetDefaultErrorTermCombo),
            F::Value(&D::m_ErrorMatrix, Ids::IDC_ERROR_MATRIX, &GetDefaultErrorMatrixEdit),
        };
    }

private:
    friend class CHypothesisErrorDlg;

    CString m_DMatrix;
    int m_ErrorRadio;
    CString m_ErrorTerm;
    CString m_ErrorMatrix;
};
