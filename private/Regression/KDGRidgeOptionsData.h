// CRidgeOptionsData: the ridge page of the ridge regression dialog. One
// ridge constant, or a grid of constants (first, last, step) whose
// estimates draw the ridge trace; whether the regressors are standardized
// first; and a file for the coefficients. Written as an optional save line
// and the "ESTIMATE" line, whose constant or grid is always stated: it is
// the choice the analysis is about.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression-models.h"

class CRidgeOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CRidgeOptionsData)
public:
    // The constant radio group: one value, a grid.
    static constexpr UINT kConstantRadio = 7041;
    static constexpr UINT kItemGrid = 7042;
    static constexpr double kMaxConstant = 1000;
    static constexpr int kMaxGridValues = 1000;

    CRidgeOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultSingleRadio() { return 0; }
    static CGUIData<double> GetDefaultKEdit() { return Number(0.1); }
    static CGUIData<double> GetDefaultFromEdit() { return Number(0); }
    static CGUIData<double> GetDefaultToEdit() { return Number(1); }
    static CGUIData<double> GetDefaultStepEdit() { return Number(0.05); }
    static int GetDefaultStandardizeCheck() { return 1; }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(int& constantRadio, CGUIData<double>& k, CGUIData<double>& from, CGUIData<double>& to,
               CGUIData<double>& step, int& standardize, int& saveCheck, CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, constantRadio, k, from, to, step, standardize, saveCheck, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int constantRadio, const CGUIData<double>& k, const CGUIData<double>& from, const CGUIData<double>& to,
               const CGUIData<double>& step, int standardize, int saveCheck, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, constantRadio, k, from, to, step, standardize, saveCheck, saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the ridge page (template 7040).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRidgeOptionsData>;
        using Ids = CRidgeOptionsDlgIds;
        return std::tuple{
            F::Value(&CRidgeOptionsData::m_ConstantRadio, Ids::IDC_SINGLE_RADIO, &GetDefaultSingleRadio),
            F::Value(&CRidgeOptionsData::m_KEdit, Ids::IDC_K_EDIT, &GetDefaultKEdit).Range(0, kMaxConstant),
            F::Value(&CRidgeOptionsData::m_FromEdit, Ids::IDC_FROM_EDIT, &GetDefaultFromEdit).Range(0, kMaxConstant),
            F::Value(&CRidgeOptionsData::m_ToEdit, Ids::IDC_TO_EDIT, &GetDefaultToEdit).Range(0, kMaxConstant),
            F::Value(&CRidgeOptionsData::m_StepEdit, Ids::IDC_STEP_EDIT, &GetDefaultStepEdit).Range(0, kMaxConstant),
            F::Value(&CRidgeOptionsData::m_StandardizeCheck, Ids::IDC_STANDARDIZE, &GetDefaultStandardizeCheck),
            F::Value(&CRidgeOptionsData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&CRidgeOptionsData::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit)
                .RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CRidgeOptionsDlg; // reads the grid it validates

    static CGUIData<double> Number(double value) { return CGUIData<double>(1, value, value, 0, 1); }

    int m_ConstantRadio;
    CGUIData<double> m_KEdit;
    CGUIData<double> m_FromEdit;
    CGUIData<double> m_ToEdit;
    CGUIData<double> m_StepEdit;
    int m_StandardizeCheck;
    int m_SaveCheck;
    CString m_SaveEdit;
};
