// CMixedTestData: the test page of a hypothesis test of a mixed model: how
// the denominator degrees of freedom of the fixed effects' F tests are
// found (residual, containment, Satterthwaite, Kenward-Roger) and the D
// matrix of hypothesised values (empty: zeros). Writes "DMATRIX" and the
// closing "TEST" line after the hypothesis page's lines.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CMixedTestData : public CGUIBaseObj {
    DECLARE_SERIAL(CMixedTestData)
public:
    static constexpr UINT kDdfRadio = CMixedTestDlgIds::IDC_DDF_RESIDUAL;

    CMixedTestData() { kal::ResetFields(*this); }

    // Satterthwaite's approximation suits unbalanced data and most models.
    static int GetDefaultDdfRadio() { return 2; }
    static CString GetDefaultDMatrixEdit() { return {}; }

    int GetAll(int& ddf, CString& dMatrix) const { return kal::CopyFieldsOut(*this, ddf, dMatrix); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int ddf, const CString& dMatrix) { return kal::CopyFieldsIn(*this, ddf, dMatrix); }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8220).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedTestData>;
        using Ids = CMixedTestDlgIds;
        return std::tuple{
            F::Value(&CMixedTestData::m_DdfRadio, Ids::IDC_DDF_RESIDUAL, &GetDefaultDdfRadio).Range(0, 3),
            F::Value(&CMixedTestData::m_DMatrix, Ids::IDC_DMATRIX, &GetDefaultDMatrixEdit),
        };
    }

private:
    friend class CMixedTestDlg; // validates what it shows

    int m_DdfRadio;
    CString m_DMatrix;
};
