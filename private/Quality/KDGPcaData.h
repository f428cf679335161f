// CPcaData: process capability. Measurements (optionally in subgroups)
// against their tolerance limits and target: the indices Cp and Cpk
// from the sigma within subgroups, Pp and Ppk from the overall sigma, the
// histogram with the fitted normal curve drawn with the sigma chosen, and a
// test of normality, without which the indices mislead. A limit or target
// left empty (or 0) is not given.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"
#include "private/Quality/KDGControlLimits.h"

#include <limits>

class CPcaData : public CGUIBaseObj {
    DECLARE_SERIAL(CPcaData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The sigma radio group: within subgroups, overall.
    static constexpr UINT kSigmaRadio = 5546;
    static constexpr UINT kItemWithin = 5546;
    static constexpr UINT kItemOverall = 5547;

    CPcaData() { kal::ResetFields(*this); }

    // Limits and target start empty: not given.
    static CGUIData<double> GetDefaultNoneGiven() { return kal::quality::NoNumber(); }
    static int GetDefaultZero() { return 0; }
    static int GetDefaultOne() { return 1; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& measures,
               CGUIArray<CGUIDataVariable>& groups, CGUIData<double>& lower, CGUIData<double>& upper,
               CGUIData<double>& target, int& sigma, int& potential, int& performance, int& normality) const
    {
        return kal::CopyFieldsOut(*this, source, measures, groups, lower, upper, target, sigma, potential, performance,
                                  normality);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& measures,
               const CGUIArray<CGUIDataVariable>& groups, const CGUIData<double>& lower, const CGUIData<double>& upper,
               const CGUIData<double>& target, int sigma, int potential, int performance, int normality)
    {
        return kal::CopyFieldsIn(*this, source, measures, groups, lower, upper, target, sigma, potential, performance,
                                 normality);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CPcaData>;
        using Ids = CPcaDlgIds;
        return std::tuple{
            F::Source(&CPcaData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CPcaData::m_MeasureVariables, Ids::IDC_MEASURE_LIST),
            F::List(&CPcaData::m_GroupVariables, Ids::IDC_GROUP_LIST),
            F::Value(&CPcaData::m_LowerEdit, Ids::IDC_LSL_EDIT, &GetDefaultNoneGiven).Blank(),
            F::Value(&CPcaData::m_UpperEdit, Ids::IDC_USL_EDIT, &GetDefaultNoneGiven).Blank(),
            F::Value(&CPcaData::m_TargetEdit, Ids::IDC_TARGET_EDIT, &GetDefaultNoneGiven).Blank(),
            F::Value(&CPcaData::m_SigmaRadio, Ids::IDC_WITHIN_RADIO, &GetDefaultZero),
            F::Value(&CPcaData::m_PotentialCheck, Ids::IDC_POTENTIAL_CHECK, &GetDefaultOne),
            F::Value(&CPcaData::m_PerformanceCheck, Ids::IDC_PERFORMANCE_CHECK, &GetDefaultOne),
            F::Value(&CPcaData::m_NormalityCheck, Ids::IDC_NORMALITY_CHECK, &GetDefaultOne),
        };
    }

private:
    friend class CPcaDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_MeasureVariables;
    CGUIArray<CGUIDataVariable> m_GroupVariables;
    CGUIData<double> m_LowerEdit;
    CGUIData<double> m_UpperEdit;
    CGUIData<double> m_TargetEdit;
    int m_SigmaRadio;
    int m_PotentialCheck;
    int m_PerformanceCheck;
    int m_NormalityCheck;
};
