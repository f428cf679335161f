// CRegressionPredictData: the prediction page of the linear regression
// dialog. Predicts the dependent variables for the cases of another file,
// with intervals at a confidence level, and may save the predictions:
// the save line, then "PREDICT 'file' / CONFI = level".
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression.h"

class CRegressionPredictData : public CGUIBaseObj {
    DECLARE_SERIAL(CRegressionPredictData)
public:
    static constexpr UINT kSaveCombo = 4180;

    CRegressionPredictData() { kal::ResetFields(*this); }

    static CString GetDefaultUseEdit() { return {}; }
    static CString GetDefaultSaveEdit() { return {}; }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(0.95); }
    static int GetDefaultPredictCheck() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 0; }

    // The entries of the save list: how many, the resource id of each (0
    // where the list names none), and the option each writes. The last
    // answers 0 for an index the list does not have.
    static int GetSaveComboCount();
    static UINT GetSaveComboIDS(int index);
    static int GetSaveComboCommand(int index, CString& command);

    int GetAll(CString& useEdit, CString& saveEdit, CGUIData<double>& confidence, int& predictCheck, int& saveCheck,
               int& saveCombo) const
    {
        return kal::CopyFieldsOut(*this, useEdit, saveEdit, confidence, predictCheck, saveCheck, saveCombo);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CString& useEdit, const CString& saveEdit, const CGUIData<double>& confidence, int predictCheck,
               int saveCheck, int saveCombo)
    {
        return kal::CopyFieldsIn(*this, useEdit, saveEdit, confidence, predictCheck, saveCheck, saveCombo);
    }

    int GetPredictCheck() const { return m_PredictCheck; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the prediction page (template
    // 4175) that show them, their defaults and ranges.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRegressionPredictData>;
        using Ids = CRegressionPredictDlgIds;
        using D = CRegressionPredictData;
        return std::tuple{
            F::Value(&D::m_UseEdit, Ids::IDC_USE_EDIT, &GetDefaultUseEdit).OpenFile().RequiredBy(Ids::IDC_PREDICT),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
            F::Value(&D::m_Confidence, Ids::IDC_CONFIDENCE, &GetDefaultConfidenceEdit).Range(0, 1),
            F::Value(&D::m_PredictCheck, Ids::IDC_PREDICT, &GetDefaultPredictCheck),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
        };
    }

private:
    CString m_UseEdit;
    CString m_SaveEdit;
    CGUIData<double> m_Confidence;
    int m_PredictCheck;
    int m_SaveCheck;
    int m_SaveCombo;
};
