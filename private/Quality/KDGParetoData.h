// CParetoData: a Pareto chart: the categories of one variable (defect
// kinds, causes of stops; string or numeric) as bars in decreasing order of
// their counts, so that the few categories that make most of the total come
// first. A count variable weights each case by its count (each case counts
// once without one); the cumulative line shows the running share; small
// categories may be pooled into one "other" bar, drawn last.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

class CParetoData : public CGUIBaseObj {
    DECLARE_SERIAL(CParetoData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The largest share, in percent, below which a category joins "other":
    // beyond half the total every category but one would be pooled.
    static constexpr double kMaxOtherShare = 50;
    static constexpr UINT kMsgShare = 9021;

    CParetoData() { kal::ResetFields(*this); }

    static int GetDefaultCumulativeCheck() { return 1; }
    static int GetDefaultZero() { return 0; }
    static CGUIData<double> GetDefaultOtherShareEdit() { return CGUIData<double>(1, 5.0, 5.0, 0, 1); }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& category,
               CGUIArray<CGUIDataVariable>& count, int& cumulative, int& other, CGUIData<double>& share,
               int& percent) const
    {
        return kal::CopyFieldsOut(*this, source, category, count, cumulative, other, share, percent);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& category,
               const CGUIArray<CGUIDataVariable>& count, int cumulative, int other, const CGUIData<double>& share,
               int percent)
    {
        return kal::CopyFieldsIn(*this, source, category, count, cumulative, other, share, percent);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CParetoData>;
        using Ids = CParetoDlgIds;
        return std::tuple{
            F::Source(&CParetoData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CParetoData::m_CategoryVariables, Ids::IDC_CATEGORY_LIST),
            F::List(&CParetoData::m_CountVariables, Ids::IDC_COUNT_LIST),
            F::Value(&CParetoData::m_CumulativeCheck, Ids::IDC_CUMULATIVE_CHECK, &GetDefaultCumulativeCheck),
            F::Value(&CParetoData::m_OtherCheck, Ids::IDC_OTHER_CHECK, &GetDefaultZero),
            F::Value(&CParetoData::m_OtherShareEdit, Ids::IDC_OTHER_EDIT, &GetDefaultOtherShareEdit)
                .Range(0, kMaxOtherShare, kMsgShare),
            F::Value(&CParetoData::m_PercentCheck, Ids::IDC_PERCENT_CHECK, &GetDefaultZero),
        };
    }

private:
    friend class CParetoDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_CategoryVariables;
    CGUIArray<CGUIDataVariable> m_CountVariables;
    int m_CumulativeCheck;
    int m_OtherCheck;
    CGUIData<double> m_OtherShareEdit;
    int m_PercentCheck;
};
