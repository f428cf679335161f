// CRsmOptimizationData: the optimization page of the response surface
// (2078). A goal per response (maximize, minimize or reach a target) with
// the bounds of its desirability and its weight, and the search: the
// factor settings of the highest overall desirability, or a ridge analysis
// of one response out to a largest radius. Written as a "GOAL" line per
// response with a goal, then "OPTIMIZE", after the factor page's lines.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/rsm.h"

class CRsmOptimizationData : public CGUIBaseObj {
    DECLARE_SERIAL(CRsmOptimizationData)
public:
    enum Goal : int { goalNone = 0, goalMaximize = 1, goalMinimize = 2, goalTarget = 3 };
    // The search radio group: desirability, ridge analysis.
    static constexpr UINT kSearchRadio = 8762;
    static constexpr UINT kItemRidge = 8763;
    static constexpr double kMaxRadius = 10;
    static constexpr UINT kMsgRadius = 8967;

    CRsmOptimizationData() { kal::ResetFields(*this); }

    bool IsRidge() const;
    // The goal of each response, by the response's name.
    int GetGoalCount() const { return m_Names.GetSize(); }

    static int GetDefaultSearchRadio() { return 0; }
    static CGUIData<double> GetDefaultRadiusEdit() { return CGUIData<double>(1, 1.0, 1.0, 0, 1); }

    int GetAll(CGUIArray<CString>& names, CGUIArray<int>& goals, CGUIArray<double>& low, CGUIArray<double>& target,
               CGUIArray<double>& high, CGUIArray<double>& weight, int& search, CGUIData<double>& radius) const
    {
        return kal::CopyFieldsOut(*this, names, goals, low, target, high, weight, search, radius);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CString>& names, const CGUIArray<int>& goals, const CGUIArray<double>& low,
               const CGUIArray<double>& target, const CGUIArray<double>& high, const CGUIArray<double>& weight,
               int search, const CGUIData<double>& radius)
    {
        return kal::CopyFieldsIn(*this, names, goals, low, target, high, weight, search, radius);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the optimization page
    // (template 8760); the goals live in the page's grid, which the page
    // exchanges itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmOptimizationData>;
        using Ids = CRsmOptimizationDlgIds;
        using D = CRsmOptimizationData;
        return std::tuple{
            F::List(&D::m_Names),
            F::List(&D::m_Goals),
            F::List(&D::m_Low),
            F::List(&D::m_Target),
            F::List(&D::m_High),
            F::List(&D::m_Weight),
            F::Value(&D::m_SearchRadio, Ids::IDC_DESIRABILITY_RADIO, &GetDefaultSearchRadio),
            F::Value(&D::m_RadiusEdit, Ids::IDC_RADIUS_EDIT, &GetDefaultRadiusEdit).Range(0, kMaxRadius, kMsgRadius),
        };
    }

private:
    friend class CRsmOptimizationDlg; // exchanges the goals itself

    // The goal line of row `i`, or an empty text for a row without a goal.
    CString GoalLine(int i) const;

    CGUIArray<CString> m_Names;
    CGUIArray<int> m_Goals;
    CGUIArray<double> m_Low;
    CGUIArray<double> m_Target;
    CGUIArray<double> m_High;
    CGUIArray<double> m_Weight;
    int m_SearchRadio;
    CGUIData<double> m_RadiusEdit;
};
