// CMixedEstimationData: the estimation page of the linear and hierarchical
// mixed models: REML or ML, the iteration limit and convergence criterion,
// the confidence of the intervals and whether the random effects are
// predicted. Written as the closing "ESTIMATE" line; the method is always
// named, the numbers only when they differ from their defaults.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CMixedEstimationData : public CGUIBaseObj {
    DECLARE_SERIAL(CMixedEstimationData)
public:
    static constexpr UINT kMethodRadio = CMixedEstimationDlgIds::IDC_REML_RADIO;
    static constexpr int kMaxIterations = 10000;

    CMixedEstimationData() { kal::ResetFields(*this); }

    static int GetDefaultMethodRadio() { return 0; }
    static CGUIData<int> GetDefaultIterEdit() { return CGUIData<int>(100); }
    static CGUIData<double> GetDefaultConvEdit() { return CGUIData<double>(1, 1e-6, 1e-6, 0, 1); }
    static CGUIData<double> GetDefaultConfiEdit() { return CGUIData<double>(1, 0.95, 0.95, 0, 1); }
    static int GetDefaultBlupCheck() { return 0; }

    int GetAll(int& method, CGUIData<int>& iterations, CGUIData<double>& convergence, CGUIData<double>& confidence,
               int& blup) const
    {
        return kal::CopyFieldsOut(*this, method, iterations, convergence, confidence, blup);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int method, const CGUIData<int>& iterations, const CGUIData<double>& convergence,
               const CGUIData<double>& confidence, int blup)
    {
        return kal::CopyFieldsIn(*this, method, iterations, convergence, confidence, blup);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8120).
    // Convergence and confidence lie strictly between 0 and 1: the page
    // refuses the ends itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedEstimationData>;
        using Ids = CMixedEstimationDlgIds;
        using D = CMixedEstimationData;
        return std::tuple{
            F::Value(&D::m_MethodRadio, Ids::IDC_REML_RADIO, &GetDefaultMethodRadio).Range(0, 1),
            F::Value(&D::m_IterEdit, Ids::IDC_ITER_EDIT, &GetDefaultIterEdit).Range(1, kMaxIterations),
            F::Value(&D::m_ConvEdit, Ids::IDC_CONV_EDIT, &GetDefaultConvEdit).Range(0, 1),
            F::Value(&D::m_ConfiEdit, Ids::IDC_CONFI_EDIT, &GetDefaultConfiEdit).Range(0, 1),
            F::Value(&D::m_BlupCheck, Ids::IDC_BLUP_CHECK, &GetDefaultBlupCheck).Range(0, 1),
        };
    }

private:
    friend class CMixedEstimationDlg; // validates what it shows

    int m_MethodRadio;
    CGUIData<int> m_IterEdit;
    CGUIData<double> m_ConvEdit;
    CGUIData<double> m_ConfiEdit;
    int m_BlupCheck;
};
