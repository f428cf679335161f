// CCorrOptionsData: the options page of the correlations tab: printed
// probabilities and their adjustment, EM estimation of incomplete cases
// (under a contaminated normal or a t distribution) and Hadi's robust
// estimation. Writes no line of its own: its tail joins the measure line
// that the first page wrote last, " / BONF EM T = 8 ITER = 50".
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/correlations.h"

class CCorrelationsData;

class CCorrOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CCorrOptionsData)
public:
    // The continuous measure whose probabilities can be printed (Pearson).
    static constexpr UINT kPearsonItem = 12480;

    CCorrOptionsData() { kal::ResetFields(*this); }

    // The two parameters of the contaminated normal are never written for
    // the host's "every option" preference: their clause is written whole
    // or not at all.
    static CGUIData<double> GetDefaultNormalFirstEdit() { return CGUIData<double>(1, 0.0, 0.0, 1, 1); }
    static CGUIData<double> GetDefaultNormalSecondEdit() { return CGUIData<double>(1, 0.0, 0.0, 1, 1); }
    static CGUIData<double> GetDefaultDfEdit() { return CGUIData<double>(5.0); }
    static CGUIData<int> GetDefaultIterationsEdit() { return CGUIData<int>(20); }
    static CGUIData<double> GetDefaultConvergenceEdit() { return CGUIData<double>(0.001); }
    static CGUIData<double> GetDefaultToleranceEdit() { return CGUIData<double>(0.0001); }
    static int GetDefaultProbabilitiesCheck() { return 0; }
    static int GetDefaultEstimationCheck() { return 0; }
    static int GetDefaultHadiCheck() { return 0; }
    static int GetDefaultProbabilityRadio() { return 0; }
    static int GetDefaultDistributionRadio() { return 0; }

    int GetAll(CGUIData<double>& normalFirst, CGUIData<double>& normalSecond, CGUIData<double>& df,
               CGUIData<int>& iterations, CGUIData<double>& convergence, CGUIData<double>& tolerance,
               int& probabilitiesCheck, int& estimationCheck, int& hadiCheck, int& probabilityRadio,
               int& distributionRadio) const
    {
        return kal::CopyFieldsOut(*this, normalFirst, normalSecond, df, iterations, convergence, tolerance,
                                  probabilitiesCheck, estimationCheck, hadiCheck, probabilityRadio, distributionRadio);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<double>& normalFirst, const CGUIData<double>& normalSecond, const CGUIData<double>& df,
               const CGUIData<int>& iterations, const CGUIData<double>& convergence, const CGUIData<double>& tolerance,
               int probabilitiesCheck, int estimationCheck, int hadiCheck, int probabilityRadio, int distributionRadio)
    {
        return kal::CopyFieldsIn(*this, normalFirst, normalSecond, df, iterations, convergence, tolerance,
                                 probabilitiesCheck, estimationCheck, hadiCheck, probabilityRadio, distributionRadio);
    }

    const CGUIData<double>& GetConvergenceEdit() const { return m_ConvergenceEdit; }
    const CGUIData<double>& GetToleranceEdit() const { return m_ToleranceEdit; }
    int GetEstimationCheck() const { return m_EstimationCheck; }
    int GetHadiCheck() const { return m_HadiCheck; }

    // The tail for the first page's settings, before a trailing "/" is
    // dropped: " /" and the options; without the slash when the measure
    // line carries "/ PAIRWISE" and nothing but options follow.
    CString GetTail(const CCorrelationsData& correlations) const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 1394).
    // Ranges apply while an edit is in use; the convergence and tolerance
    // must also be above 0, which the page checks itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCorrOptionsData>;
        using Ids = CCorrOptionsDlgIds;
        return std::tuple{
            F::Value(&CCorrOptionsData::m_NormalFirstEdit, Ids::IDC_NORMAL_FIRST, &GetDefaultNormalFirstEdit)
                .Range(0, 1),
            F::Value(&CCorrOptionsData::m_NormalSecondEdit, Ids::IDC_NORMAL_SECOND, &GetDefaultNormalSecondEdit)
                .Range(0, 1000),
            F::Value(&CCorrOptionsData::m_DfEdit, Ids::IDC_DF, &GetDefaultDfEdit).Range(1, 1000),
            F::Value(&CCorrOptionsData::m_IterationsEdit, Ids::IDC_ITERATIONS, &GetDefaultIterationsEdit)
                .Range(1, 10000),
            F::Value(&CCorrOptionsData::m_ConvergenceEdit, Ids::IDC_CONVERGENCE, &GetDefaultConvergenceEdit)
                .Range(0, 1),
            F::Value(&CCorrOptionsData::m_ToleranceEdit, Ids::IDC_TOLERANCE, &GetDefaultToleranceEdit).Range(0, 1),
            F::Value(&CCorrOptionsData::m_ProbabilitiesCheck, Ids::IDC_PROBABILITIES, &GetDefaultProbabilitiesCheck),
            F::Value(&CCorrOptionsData::m_EstimationCheck, Ids::IDC_EM, &GetDefaultEstimationCheck),
            F::Value(&CCorrOptionsData::m_HadiCheck, Ids::IDC_HADI, &GetDefaultHadiCheck),
            F::Value(&CCorrOptionsData::m_ProbabilityRadio, Ids::IDC_BONFERRONI, &GetDefaultProbabilityRadio),
            F::Value(&CCorrOptionsData::m_DistributionRadio, Ids::IDC_NORMAL, &GetDefaultDistributionRadio),
        };
    }

private:
    CGUIData<double> m_NormalFirstEdit;
    CGUIData<double> m_NormalSecondEdit;
    CGUIData<double> m_DfEdit;
    CGUIData<int> m_IterationsEdit;
    CGUIData<double> m_ConvergenceEdit;
    CGUIData<double> m_ToleranceEdit;
    int m_ProbabilitiesCheck;
    int m_EstimationCheck;
    int m_HadiCheck;
    int m_ProbabilityRadio;
    int m_DistributionRadio;
};
