// CKmeansOptionsData: the options page of the k-means clustering dialog.
// Where the first centers come from (the first k cases, random cases, or the
// groups a variable forms), the random seed, the iterations and convergence,
// and a file for the cluster of each case (with its distance to the
// center). Its clauses join the "KMEANS" line; its save line goes in front
// of it.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/cluster.h"

class CKmeansOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CKmeansOptionsData)
public:
    // The radio group of the first centers, named by its first button.
    static constexpr UINT kCentersRadio = CKmeansOptionsDlgIds::IDC_FIRST_RADIO;
    static constexpr int kMaxIterations = 10000;

    CKmeansOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultCentersRadio() { return 0; }
    static CGUIData<unsigned int> GetDefaultSeedEdit() { return CGUIData<unsigned int>(0u); }
    static CGUIData<int> GetDefaultIterEdit() { return CGUIData<int>(20); }
    static CGUIData<double> GetDefaultConvEdit() { return CGUIData<double>(0.0001); }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }
    static int GetDefaultDistanceCheck() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& group, int& centers,
               CGUIData<unsigned int>& seed, CGUIData<int>& iter, CGUIData<double>& conv, int& save, CString& file,
               int& distance) const
    {
        return kal::CopyFieldsOut(*this, source, group, centers, seed, iter, conv, save, file, distance);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& group, int centers,
               const CGUIData<unsigned int>& seed, const CGUIData<int>& iter, const CGUIData<double>& conv, int save,
               const CString& file, int distance)
    {
        return kal::CopyFieldsIn(*this, source, group, centers, seed, iter, conv, save, file, distance);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the options page (template
    // 6620).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CKmeansOptionsData>;
        using Ids = CKmeansOptionsDlgIds;
        using D = CKmeansOptionsData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_GroupList, Ids::IDC_GROUP_LIST),
            F::Value(&D::m_CentersRadio, Ids::IDC_FIRST_RADIO, &GetDefaultCentersRadio),
            F::Value(&D::m_SeedEdit, Ids::IDC_SEED_EDIT, &GetDefaultSeedEdit),
            F::Value(&D::m_IterEdit, Ids::IDC_ITER_EDIT, &GetDefaultIterEdit).Range(1, kMaxIterations),
            F::Value(&D::m_ConvEdit, Ids::IDC_CONV_EDIT, &GetDefaultConvEdit).Range(0, 1),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
            F::Value(&D::m_DistanceCheck, Ids::IDC_DISTANCE_CHECK, &GetDefaultDistanceCheck),
        };
    }

private:
    friend class CKmeansOptionsDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_GroupList;
    int m_CentersRadio;
    CGUIData<unsigned int> m_SeedEdit;
    CGUIData<int> m_IterEdit;
    CGUIData<double> m_ConvEdit;
    int m_SaveCheck;
    CString m_SaveEdit;
    int m_DistanceCheck;
};
