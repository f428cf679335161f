// CPlsData: the page of partial least squares regression (2064): numeric
// responses and predictors, the number of components (fixed, or the
// largest number tried by cross-validation over some folds), the scaling of
// the variables, and the components' scores saved to a file. Written as the
// module line, "MODEL responses = predictors", the save line and the
// "ESTIMATE" line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/pls.h"

class CPlsData : public CGUIBaseObj {
    DECLARE_SERIAL(CPlsData)
public:
    static constexpr UINT kModulePls = 12989;
    // Components: fixed (0), by cross-validation (1).
    static constexpr UINT kComponentsRadio = 7861;
    // Scaling: standardise (0), centre only (1), none (2).
    static constexpr UINT kScaleRadio = 7866;
    enum Scale : UINT { kStandardize = 7866, kCenter = 7867, kNoScaling = 7868 };
    static constexpr int kMaxComponents = 100;

    CPlsData() { kal::ResetFields(*this); }

    static int GetDefaultComponentsRadio() { return 0; }
    static CGUIData<int> GetDefaultComponentsEdit() { return CGUIData<int>(2); }
    static CGUIData<int> GetDefaultFoldsEdit() { return CGUIData<int>(10); }
    static int GetDefaultScaleRadio() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& responses,
               CGUIArray<CGUIDataVariable>& predictors, int& componentsKind, CGUIData<int>& components,
               CGUIData<int>& folds, int& scale, int& save, CString& file) const
    {
        return kal::CopyFieldsOut(*this, source, responses, predictors, componentsKind, components, folds, scale, save,
                                  file);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& responses,
               const CGUIArray<CGUIDataVariable>& predictors, int componentsKind, const CGUIData<int>& components,
               const CGUIData<int>& folds, int scale, int save, const CString& file)
    {
        return kal::CopyFieldsIn(*this, source, responses, predictors, componentsKind, components, folds, scale, save,
                                 file);
    }

    bool IsCrossValidated() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 7850).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CPlsData>;
        using Ids = CPlsDlgIds;
        using D = CPlsData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ResponseList, Ids::IDC_RESPONSE_LIST),
            F::List(&D::m_PredictorList, Ids::IDC_PREDICTOR_LIST),
            F::Value(&D::m_ComponentsRadio, Ids::IDC_FIXED_RADIO, &GetDefaultComponentsRadio),
            F::Value(&D::m_ComponentsEdit, Ids::IDC_COMPONENTS_EDIT, &GetDefaultComponentsEdit)
                .Range(1, kMaxComponents),
            F::Value(&D::m_FoldsEdit, Ids::IDC_FOLDS_EDIT, &GetDefaultFoldsEdit).Range(2, 100),
            F::Value(&D::m_ScaleRadio, Ids::IDC_STANDARDIZE_RADIO, &GetDefaultScaleRadio),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CPlsDlg; // checks the roles against the components

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ResponseList;
    CGUIArray<CGUIDataVariable> m_PredictorList;
    int m_ComponentsRadio;
    CGUIData<int> m_ComponentsEdit;
    CGUIData<int> m_FoldsEdit;
    int m_ScaleRadio;
    int m_SaveCheck;
    CString m_SaveEdit;
};
