// CLogitQuantilesData: quantiles of the predicted probability of the last
// logistic model (see CLastLogitModel): the cases are ordered by their
// fitted probability and cut into groups of equal size, each group's mean
// prediction against its observed rate, separately within the groups the
// grouping variables form. The probability, or the linear predictor on the
// logit scale. Written after the module line as the "QUANTILES" line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logitpost.h"

class CLogitQuantilesData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitQuantilesData)
public:
    static constexpr UINT kModuleLogit = 12914;
    // The scale: probability (0), logit (1).
    static constexpr UINT kScaleRadio = 7526;
    static constexpr int kMinGroups = 2;
    static constexpr int kMaxGroups = 100;

    CLogitQuantilesData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultGroupsEdit() { return CGUIData<int>(10); }
    static int GetDefaultScaleRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& by, CGUIData<int>& groups,
               int& scale) const
    {
        return kal::CopyFieldsOut(*this, source, by, groups, scale);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& by,
               const CGUIData<int>& groups, int scale)
    {
        return kal::CopyFieldsIn(*this, source, by, groups, scale);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The dialog's controls (template 7520).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitQuantilesData>;
        using Ids = CLogitQuantilesDlgIds;
        using D = CLogitQuantilesData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ByList, Ids::IDC_BY_LIST),
            F::Value(&D::m_GroupsEdit, Ids::IDC_GROUPS_EDIT, &GetDefaultGroupsEdit).Range(kMinGroups, kMaxGroups),
            F::Value(&D::m_ScaleRadio, Ids::IDC_PROBABILITY_RADIO, &GetDefaultScaleRadio),
        };
    }

private:
    friend class CLogitQuantilesDlg; // checks the grouping variables

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ByList;
    CGUIData<int> m_GroupsEdit;
    int m_ScaleRadio;
};
