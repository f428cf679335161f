// CAddTreeData: the settings of the additive trees dialog. The objects (the
// variables of the data sheet), what their dissimilarities are (with matrix
// data the sheet holds them, as dissimilarities or similarities; with
// ordinary data they are the distances, shared with the cluster analyses,
// between the variables over the cases), the kind of tree (additive or
// ultrametric), and the fitted distances, printed or saved. Written as the
// module line, an optional save line and the "ADDTREE" line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/addtree.h"
#include "private/Multivariate/KDGClusterDistance.h"

class CAddTreeData : public CGUIBaseObj {
    DECLARE_SERIAL(CAddTreeData)
public:
    static constexpr UINT kModuleCluster = 12966;
    // The radio groups, named by their first buttons.
    static constexpr UINT kInputRadio = CAddTreeDlgIds::IDC_DISSIMILARITY_RADIO;
    static constexpr UINT kTreeRadio = CAddTreeDlgIds::IDC_ADDITIVE_RADIO;

    CAddTreeData() { kal::ResetFields(*this); }

    static int GetDefaultInputRadio() { return 0; }
    static int GetDefaultTreeRadio() { return 0; }
    static int GetDefaultDistanceCombo() { return 0; }
    static CGUIData<double> GetDefaultPowerEdit() { return kal::multivariate::DefaultPower(); }
    static int GetDefaultFittedCheck() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& objects, int& input, int& tree,
               int& distance, CGUIData<double>& power, int& fitted, int& save, CString& file) const
    {
        return kal::CopyFieldsOut(*this, source, objects, input, tree, distance, power, fitted, save, file);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& objects, int input,
               int tree, int distance, const CGUIData<double>& power, int fitted, int save, const CString& file)
    {
        return kal::CopyFieldsIn(*this, source, objects, input, tree, distance, power, fitted, save, file);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the dialog (template 6780).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CAddTreeData>;
        using Ids = CAddTreeDlgIds;
        using D = CAddTreeData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ObjectList, Ids::IDC_OBJECT_LIST),
            F::Value(&D::m_InputRadio, Ids::IDC_DISSIMILARITY_RADIO, &GetDefaultInputRadio),
            F::Value(&D::m_TreeRadio, Ids::IDC_ADDITIVE_RADIO, &GetDefaultTreeRadio),
            F::Value(&D::m_DistanceCombo, Ids::IDC_DISTANCE_COMBO, &GetDefaultDistanceCombo),
            F::Value(&D::m_PowerEdit, Ids::IDC_POWER_EDIT, &GetDefaultPowerEdit)
                .Range(kal::multivariate::kMinPower, kal::multivariate::kMaxPower),
            F::Value(&D::m_FittedCheck, Ids::IDC_FITTED_CHECK, &GetDefaultFittedCheck),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CAddTreeDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ObjectList;
    int m_InputRadio;
    int m_TreeRadio;
    int m_DistanceCombo;
    CGUIData<double> m_PowerEdit;
    int m_FittedCheck;
    int m_SaveCheck;
    CString m_SaveEdit;
};
