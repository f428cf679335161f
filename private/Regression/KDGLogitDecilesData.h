// CLogitDecilesData: the deciles-of-risk page of the logistic regression
// dialog. The Hosmer-Lemeshow table of observed and expected events in
// groups of cases ordered by their fitted risk: groups of equal numbers of
// cases or of equal widths of risk, and how many. Writes its own "DECILE"
// line after the estimation lines. A binary response is needed, so the
// dialog offers the page only without choice sets.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logit.h"

class CLogitDecilesData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitDecilesData)
public:
    // The radio group of the grouping, named by its first button: equal
    // numbers of cases (index 0) or equal widths (index 1).
    static constexpr UINT kGroupingRadio = CLogitDecilesDlgIds::IDC_EQUAL_COUNTS;
    static constexpr int kMinGroups = 2;
    static constexpr int kMaxGroups = 100;

    CLogitDecilesData() { kal::ResetFields(*this); }

    static int GetDefaultDecilesCheck() { return 0; }
    static int GetDefaultEqualCountsRadio() { return 0; }
    static CGUIData<int> GetDefaultGroupsEdit() { return CGUIData<int>(10); }

    int GetAll(int& decilesCheck, int& groupingRadio, CGUIData<int>& groups) const
    {
        return kal::CopyFieldsOut(*this, decilesCheck, groupingRadio, groups);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int decilesCheck, int groupingRadio, const CGUIData<int>& groups)
    {
        return kal::CopyFieldsIn(*this, decilesCheck, groupingRadio, groups);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the deciles page (template
    // 2760) that show them, their defaults and ranges.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitDecilesData>;
        using Ids = CLogitDecilesDlgIds;
        using D = CLogitDecilesData;
        return std::tuple{
            F::Value(&D::m_DecilesCheck, Ids::IDC_DECILES, &GetDefaultDecilesCheck),
            F::Value(&D::m_GroupingRadio, Ids::IDC_EQUAL_COUNTS, &GetDefaultEqualCountsRadio),
            F::Value(&D::m_Groups, Ids::IDC_GROUPS, &GetDefaultGroupsEdit).Range(kMinGroups, kMaxGroups),
        };
    }

private:
    int m_DecilesCheck;
    int m_GroupingRadio;
    CGUIData<int> m_Groups;
};
