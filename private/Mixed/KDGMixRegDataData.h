// CMixRegDataData: the data structure of a mixed regression. In the long
// layout each case is one occasion of a subject: the id variable names the
// subject and the time variable the occasion. In the wide layout each case
// is a subject with one variable per occasion, in time order, with the
// times of the occasions (empty: 1, 2, 3, ...); the data restructured to
// the long layout may be saved.
//
// Written as the module line and "DATA" (the occasion variables, the
// layout, the id and the time or times), then the save line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CMixRegDataData : public CGUIBaseObj {
    DECLARE_SERIAL(CMixRegDataData)
public:
    static constexpr UINT kLayoutRadio = CMixRegDataDlgIds::IDC_LONG_RADIO;

    CMixRegDataData() { kal::ResetFields(*this); }

    static int GetDefaultLayoutRadio() { return 0; }
    static CString GetDefaultTimesEdit() { return {}; }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(int& layout, CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& id,
               CGUIArray<CGUIDataVariable>& time, CGUIArray<CGUIDataVariable>& repeated, CString& times, int& save,
               CString& saveFile) const
    {
        return kal::CopyFieldsOut(*this, layout, source, id, time, repeated, times, save, saveFile);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int layout, const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& id,
               const CGUIArray<CGUIDataVariable>& time, const CGUIArray<CGUIDataVariable>& repeated,
               const CString& times, int save, const CString& saveFile)
    {
        return kal::CopyFieldsIn(*this, layout, source, id, time, repeated, times, save, saveFile);
    }

    bool IsWide() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8320).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixRegDataData>;
        using Ids = CMixRegDataDlgIds;
        using D = CMixRegDataData;
        return std::tuple{
            F::Value(&D::m_LayoutRadio, Ids::IDC_LONG_RADIO, &GetDefaultLayoutRadio).Range(0, 1),
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_IdList, Ids::IDC_ID_LIST),
            F::List(&D::m_TimeList, Ids::IDC_TIME_LIST),
            F::List(&D::m_RepeatedList, Ids::IDC_REPEATED_LIST),
            F::Value(&D::m_TimesEdit, Ids::IDC_TIMES_EDIT, &GetDefaultTimesEdit),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck).Range(0, 1),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CMixRegDataDlg; // validates what it shows

    int m_LayoutRadio;
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_IdList;
    CGUIArray<CGUIDataVariable> m_TimeList;
    CGUIArray<CGUIDataVariable> m_RepeatedList;
    CString m_TimesEdit;
    int m_SaveCheck;
    CString m_SaveEdit;
};
