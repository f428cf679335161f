// CJoinData: the clustering page of the hierarchical clustering dialog. The
// variables, whether cases or the variables themselves are joined, the
// distance (shared with k-means) and the linkage that says how far apart
// two clusters are. Written as the module line and the "JOIN" line, to
// which the options page adds its clause and in front of which it puts its
// save line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/cluster.h"
#include "private/Multivariate/KDGClusterDistance.h"

class CJoinData : public CGUIBaseObj {
    DECLARE_SERIAL(CJoinData)
public:
    static constexpr UINT kModuleCluster = 12966;
    static constexpr UINT kLinkageList = 6591;
    static constexpr UINT kJoinRadio = CJoinDlgIds::IDC_CASES_RADIO;

    CJoinData() { kal::ResetFields(*this); }

    static int GetDefaultJoinRadio() { return 0; }
    static int GetDefaultDistanceCombo() { return 0; }
    static CGUIData<double> GetDefaultPowerEdit() { return kal::multivariate::DefaultPower(); }
    // Average linkage: neither chains like single nor breaks up like
    // complete linkage.
    static int GetDefaultLinkageCombo() { return 2; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& variables, int& join, int& distance,
               CGUIData<double>& power, int& linkage) const
    {
        return kal::CopyFieldsOut(*this, source, variables, join, distance, power, linkage);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& variables, int join,
               int distance, const CGUIData<double>& power, int linkage)
    {
        return kal::CopyFieldsIn(*this, source, variables, join, distance, power, linkage);
    }

    // Whether cases (not variables) are joined.
    bool JoinsCases() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the clustering page
    // (template 6540).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CJoinData>;
        using Ids = CJoinDlgIds;
        return std::tuple{
            F::Source(&CJoinData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CJoinData::m_VariableList, Ids::IDC_VARIABLE_LIST),
            F::Value(&CJoinData::m_JoinRadio, Ids::IDC_CASES_RADIO, &GetDefaultJoinRadio),
            F::Value(&CJoinData::m_DistanceCombo, Ids::IDC_DISTANCE_COMBO, &GetDefaultDistanceCombo),
            F::Value(&CJoinData::m_PowerEdit, Ids::IDC_POWER_EDIT, &GetDefaultPowerEdit)
                .Range(kal::multivariate::kMinPower, kal::multivariate::kMaxPower),
            F::Value(&CJoinData::m_LinkageCombo, Ids::IDC_LINKAGE_COMBO, &GetDefaultLinkageCombo),
        };
    }

private:
    friend class CJoinDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_VariableList;
    int m_JoinRadio;
    int m_DistanceCombo;
    CGUIData<double> m_PowerEdit;
    int m_LinkageCombo;
};
