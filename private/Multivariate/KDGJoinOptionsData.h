// CJoinOptionsData: the options page of the hierarchical clustering dialog.
// Whether the variables are standardized before distances are taken, and
// whether the cluster of each case is saved when the tree is cut into a
// number of clusters. Its clause joins the "JOIN" line; its save line goes
// in front of it.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/cluster.h"

class CJoinOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CJoinOptionsData)
public:
    static constexpr int kMinClusters = 2;
    static constexpr int kMaxClusters = 1000;

    CJoinOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultStandardizeCheck() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static CGUIData<int> GetDefaultNumberEdit() { return CGUIData<int>(2); }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(int& standardize, int& save, CGUIData<int>& number, CString& file) const
    {
        return kal::CopyFieldsOut(*this, standardize, save, number, file);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int standardize, int save, const CGUIData<int>& number, const CString& file)
    {
        return kal::CopyFieldsIn(*this, standardize, save, number, file);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the options page (template
    // 6560).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CJoinOptionsData>;
        using Ids = CJoinOptionsDlgIds;
        using D = CJoinOptionsData;
        return std::tuple{
            F::Value(&D::m_StandardizeCheck, Ids::IDC_STANDARDIZE_CHECK, &GetDefaultStandardizeCheck),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_NumberEdit, Ids::IDC_NUMBER_EDIT, &GetDefaultNumberEdit).Range(kMinClusters, kMaxClusters),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CJoinOptionsDlg; // reads the values it validates

    int m_StandardizeCheck;
    int m_SaveCheck;
    CGUIData<int> m_NumberEdit;
    CString m_SaveEdit;
};
