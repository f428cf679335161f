// CSmoothData: the page of the smoothing dialog (2058): a response and one
// predictor, the smoother (locally weighted regression, a smoothing spline
// or a kernel), its span or degrees of freedom, the robustness iterations
// of the locally weighted fit, the kernel, and the smoothed values saved to
// a file. Written as the module line, "MODEL response = predictor", the
// save line and the "ESTIMATE" line that names the smoother.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/smooth.h"

class CSmoothData : public CGUIBaseObj {
    DECLARE_SERIAL(CSmoothData)
public:
    static constexpr UINT kModuleSmooth = 12988;
    static constexpr UINT kSmootherRadio = 7801;
    enum Smoother : UINT { kLowess = 7801, kSpline = 7802, kKernel = 7803 };
    static constexpr UINT kKernelCombo = 7812;

    CSmoothData() { kal::ResetFields(*this); }

    static int GetDefaultSmootherRadio() { return 0; }
    static CGUIData<double> GetDefaultSpanEdit() { return CGUIData<double>(0.5); }
    static CGUIData<double> GetDefaultDfEdit() { return CGUIData<double>(4.0); }
    static CGUIData<int> GetDefaultIterationsEdit() { return CGUIData<int>(2); }
    static int GetDefaultKernelCombo() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& response,
               CGUIArray<CGUIDataVariable>& predictor, int& smoother, CGUIData<double>& span, CGUIData<double>& df,
               CGUIData<int>& iterations, int& kernel, int& save, CString& file) const
    {
        return kal::CopyFieldsOut(*this, source, response, predictor, smoother, span, df, iterations, kernel, save,
                                  file);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& response,
               const CGUIArray<CGUIDataVariable>& predictor, int smoother, const CGUIData<double>& span,
               const CGUIData<double>& df, const CGUIData<int>& iterations, int kernel, int save, const CString& file)
    {
        return kal::CopyFieldsIn(*this, source, response, predictor, smoother, span, df, iterations, kernel, save,
                                 file);
    }

    UINT ChosenSmoother() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 7800).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSmoothData>;
        using Ids = CSmoothDlgIds;
        using D = CSmoothData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ResponseList, Ids::IDC_RESPONSE_LIST),
            F::List(&D::m_PredictorList, Ids::IDC_PREDICTOR_LIST),
            F::Value(&D::m_SmootherRadio, Ids::IDC_LOWESS_RADIO, &GetDefaultSmootherRadio),
            F::Value(&D::m_SpanEdit, Ids::IDC_SPAN_EDIT, &GetDefaultSpanEdit).Range(0, 1),
            F::Value(&D::m_DfEdit, Ids::IDC_DF_EDIT, &GetDefaultDfEdit).Range(2, 100),
            F::Value(&D::m_IterationsEdit, Ids::IDC_ITERATIONS_EDIT, &GetDefaultIterationsEdit).Range(0, 10),
            F::Value(&D::m_KernelCombo, Ids::IDC_KERNEL_COMBO, &GetDefaultKernelCombo),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CSmoothDlg; // checks the roles and the span

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ResponseList;
    CGUIArray<CGUIDataVariable> m_PredictorList;
    int m_SmootherRadio;
    CGUIData<double> m_SpanEdit;
    CGUIData<double> m_DfEdit;
    CGUIData<int> m_IterationsEdit;
    int m_KernelCombo;
    int m_SaveCheck;
    CString m_SaveEdit;
};
