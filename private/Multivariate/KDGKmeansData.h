// CKmeansData: the first page of the k-means clustering dialog. The
// variables, the number of clusters k, the distance (shared with
// hierarchical clustering) and whether the variables are standardized.
// Written as the module line and the "KMEANS" line, to which the options
// page adds its clauses and in front of which it puts its save line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/cluster.h"
#include "private/Multivariate/KDGClusterDistance.h"

class CKmeansData : public CGUIBaseObj {
    DECLARE_SERIAL(CKmeansData)
public:
    static constexpr UINT kModuleCluster = 12966;
    static constexpr int kMinClusters = 2;
    static constexpr int kMaxClusters = 1000;

    CKmeansData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultNumberEdit() { return CGUIData<int>(3); }
    static int GetDefaultDistanceCombo() { return 0; }
    static CGUIData<double> GetDefaultPowerEdit() { return kal::multivariate::DefaultPower(); }
    static int GetDefaultStandardizeCheck() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& variables, CGUIData<int>& number,
               int& distance, CGUIData<double>& power, int& standardize) const
    {
        return kal::CopyFieldsOut(*this, source, variables, number, distance, power, standardize);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& variables,
               const CGUIData<int>& number, int distance, const CGUIData<double>& power, int standardize)
    {
        return kal::CopyFieldsIn(*this, source, variables, number, distance, power, standardize);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the k-means page (template
    // 6600).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CKmeansData>;
        using Ids = CKmeansDlgIds;
        return std::tuple{
            F::Source(&CKmeansData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CKmeansData::m_VariableList, Ids::IDC_VARIABLE_LIST),
            F::Value(&CKmeansData::m_NumberEdit, Ids::IDC_NUMBER_EDIT, &GetDefaultNumberEdit)
                .Range(kMinClusters, kMaxClusters),
            F::Value(&CKmeansData::m_DistanceCombo, Ids::IDC_DISTANCE_COMBO, &GetDefaultDistanceCombo),
            F::Value(&CKmeansData::m_PowerEdit, Ids::IDC_POWER_EDIT, &GetDefaultPowerEdit)
                .Range(kal::multivariate::kMinPower, kal::multivariate::kMaxPower),
            F::Value(&CKmeansData::m_StandardizeCheck, Ids::IDC_STANDARDIZE_CHECK, &GetDefaultStandardizeCheck),
        };
    }

private:
    friend class CKmeansDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_VariableList;
    CGUIData<int> m_NumberEdit;
    int m_DistanceCombo;
    CGUIData<double> m_PowerEdit;
    int m_StandardizeCheck;
};
