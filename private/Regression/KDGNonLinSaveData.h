// CNonLinSaveData: the save page of the nonlinear regressions (2030, 2031):
// the residuals, alone or with the data, saved to a file. Its "SAVE" line
// goes before the "ESTIMATE" line the estimation page wrote, so that the
// host knows where to save before it estimates.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/nonlinear.h"

class CNonLinSaveData : public CGUIBaseObj {
    DECLARE_SERIAL(CNonLinSaveData)
public:
    static constexpr UINT kSaveCombo = 7672;

    CNonLinSaveData() { kal::ResetFields(*this); }

    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSaveCombo() { return 1; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(int& save, int& kind, CString& file) const { return kal::CopyFieldsOut(*this, save, kind, file); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int save, int kind, const CString& file) { return kal::CopyFieldsIn(*this, save, kind, file); }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 7670).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CNonLinSaveData>;
        using Ids = CNonLinSaveDlgIds;
        using D = CNonLinSaveData;
        return std::tuple{
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};
