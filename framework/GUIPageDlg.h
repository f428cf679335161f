// CGUIPageDlg: a page that edits the fields of one settings class. It keeps
// a working copy of the settings (the values the page shows) and derives
// from the settings' field table what every page used to spell out:
//
//  - GetAll / SetAll: the settings' own GetAll / SetAll over the working
//    copy's fields, in member order; what GetAll takes is held against the
//    controls (CheckField), so that a value the page cannot show is refused;
//  - GetAllDefault: the working copy back to the defaults, source lists kept;
//    SetAllDefault: the settings' fields back to the defaults;
//  - DoDataExchange: each field with a control, by the control's kind, with
//    the field's range.
//
// A page adds its lists (CRoleList), its enable rules and what else is its
// own.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIDataDlg.h"

template <class TData, class TBase = CGUIBaseDlg>
class CGUIPageDlg : public CGUIDataDlg<TData, TBase> {
public:
    using CGUIDataDlg<TData, TBase>::CGUIDataDlg;

    int GetAll() override
    {
        if (!this->m_pData)
            return 0;
        const int result =
            kal::WithFields(m_Work, [this](auto&... fields) { return this->m_pData->GetAll(fields...); });
        CheckWork();
        return result;
    }
    int SetAll() override
    {
        if (!this->m_pData)
            return 0;
        return kal::WithFields(m_Work, [this](auto&... fields) { return this->m_pData->SetAll(fields...); });
    }
    int GetAllDefault() override
    {
        kal::ResetFields(m_Work, true);
        return 1;
    }
    int SetAllDefault() override
    {
        if (this->m_pData)
            kal::ResetFields(*this->m_pData);
        return 1;
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        TBase::DoDataExchange(pDX);
        kal::ForEachField<TData>([&](const auto& field) {
            if constexpr (requires { this->ExchangeField(pDX, CFieldExchange{}, m_Work.*field.member); }) {
                if (field.control != 0)
                    this->ExchangeField(
                        pDX, {field.control, field.flags, field.min, field.max, field.rangeMessage, field.requiredBy},
                        m_Work.*field.member);
            }
        });
    }

protected:
    void CheckWork() const
    {
        kal::ForEachField<TData>([&](const auto& field) {
            if constexpr (requires { this->CheckField(CFieldExchange{}, m_Work.*field.member); }) {
                if (field.control != 0)
                    this->CheckField(
                        {field.control, field.flags, field.min, field.max, field.rangeMessage, field.requiredBy},
                        m_Work.*field.member);
            }
        });
    }

    // The values the page shows, in the settings' member order.
    TData m_Work;
};
