// CTreesData: the model page of the classification and regression trees
// dialog. The response (a string response is classified; a numeric one is
// classified or predicted as a value, as the kind of tree says), the
// predictors of any type, and a file for the predicted class or value.
// Written as the module line, an optional save line, the "MODEL" line and
// the "ESTIMATE" line with the kind of tree, which the options page extends.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "framework/ResourceUtil.h"
#include "ids/trees.h"

class CTreesData : public CGUIBaseObj {
    DECLARE_SERIAL(CTreesData)
public:
    static constexpr UINT kModuleTrees = 12969;
    static constexpr UINT kSaveList = 6762;
    static constexpr UINT kKindRadio = CTreesDlgIds::IDC_CLASSIFICATION_RADIO;

    CTreesData() { kal::ResetFields(*this); }

    static int GetDefaultKindRadio() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& response,
               CGUIArray<CGUIDataVariable>& predictors, int& kind, int& save, int& saveCombo, CString& file) const
    {
        return kal::CopyFieldsOut(*this, source, response, predictors, kind, save, saveCombo, file);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& response,
               const CGUIArray<CGUIDataVariable>& predictors, int kind, int save, int saveCombo, const CString& file)
    {
        return kal::CopyFieldsIn(*this, source, response, predictors, kind, save, saveCombo, file);
    }

    // Whether the tree classifies (rather than predicts a value).
    bool IsClassification() const
    {
        return CRadioUtil::GetRadioItem(kKindRadio, m_KindRadio) != CTreesDlgIds::IDC_REGRESSION_RADIO;
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the model page (template
    // 6720).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTreesData>;
        using Ids = CTreesDlgIds;
        using D = CTreesData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ResponseList, Ids::IDC_RESPONSE_LIST),
            F::List(&D::m_PredictorList, Ids::IDC_PREDICTOR_LIST),
            F::Value(&D::m_KindRadio, Ids::IDC_CLASSIFICATION_RADIO, &GetDefaultKindRadio),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CTreesDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ResponseList;
    CGUIArray<CGUIDataVariable> m_PredictorList;
    int m_KindRadio;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};
