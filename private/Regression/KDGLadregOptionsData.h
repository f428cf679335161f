// CLadregOptionsData: the estimation page of the least-absolute-deviations
// dialog. The quantile the model fits (the median by default: least
// absolute deviations), how the confidence intervals of the coefficients are
// found (inverting the rank test, a kernel estimate of the sparsity, or the
// bootstrap with its number of resamples), their level, and a file for the
// residuals. Written as an optional save line and the "ESTIMATE" line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression-models.h"

class CLadregOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CLadregOptionsData)
public:
    static constexpr UINT kCiCombo = 7062;
    static constexpr int kBootstrapEntry = 2;

    CLadregOptionsData() { kal::ResetFields(*this); }

    static CGUIData<double> GetDefaultQuantileEdit() { return Number(0.5); }
    static int GetDefaultCiCombo() { return 0; }
    static CGUIData<double> GetDefaultConfidenceEdit() { return Number(0.95); }
    static CGUIData<int> GetDefaultSamplesEdit() { return CGUIData<int>(1, 200, 200, 0, 1); }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIData<double>& quantile, int& ciCombo, CGUIData<double>& confidence, CGUIData<int>& samples,
               int& saveCheck, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, quantile, ciCombo, confidence, samples, saveCheck, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<double>& quantile, int ciCombo, const CGUIData<double>& confidence,
               const CGUIData<int>& samples, int saveCheck, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, quantile, ciCombo, confidence, samples, saveCheck, saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the estimation page
    // (template 7060). The quantile's ends are open: the page refuses them.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLadregOptionsData>;
        using Ids = CLadregOptionsDlgIds;
        return std::tuple{
            F::Value(&CLadregOptionsData::m_QuantileEdit, Ids::IDC_QUANTILE_EDIT, &GetDefaultQuantileEdit).Range(0, 1),
            F::Value(&CLadregOptionsData::m_CiCombo, Ids::IDC_CI_COMBO, &GetDefaultCiCombo),
            F::Value(&CLadregOptionsData::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit)
                .Range(0, 1),
            F::Value(&CLadregOptionsData::m_SamplesEdit, Ids::IDC_SAMPLES_EDIT, &GetDefaultSamplesEdit)
                .Range(10, 100000),
            F::Value(&CLadregOptionsData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&CLadregOptionsData::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit)
                .RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

    static constexpr UINT kMsgQuantile = 7075;

private:
    friend class CLadregOptionsDlg; // reads the quantile it validates

    static CGUIData<double> Number(double value) { return CGUIData<double>(1, value, value, 0, 1); }

    CGUIData<double> m_QuantileEdit;
    int m_CiCombo;
    CGUIData<double> m_ConfidenceEdit;
    CGUIData<int> m_SamplesEdit;
    int m_SaveCheck;
    CString m_SaveEdit;
};
