// CNonLinearTabData (2030) and CNonLinLossTabData (2031): the settings of
// the two nonlinear regression dialogs, the same three pages in page order:
// model, estimation, save. The model page writes the module, model, loss
// and parameter lines, the estimation page the "ESTIMATE" line, and the
// save page puts its line before it. The loss dialog's model page carries
// owner 2203 and asks for the loss too; each command keeps its own
// settings.
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGNonLinOptsData.h"
#include "private/Regression/KDGNonLinSaveData.h"
#include "private/Regression/KDGNonLinearData.h"

class CNonLinearPagesData : public CGUITabData {
    DECLARE_DYNAMIC(CNonLinearPagesData)
public:
    CNonLinearPagesData() { LinkPages(); }
    CNonLinearPagesData(const CNonLinearPagesData& other) : CNonLinearPagesData() { *this = other; }
    CNonLinearPagesData& operator=(const CNonLinearPagesData&) = default;

    static CNonLinearData GetDefaultNonLinear() { return CNonLinearData(); }
    static CNonLinOptsData GetDefaultNonLinOpts() { return CNonLinOptsData(); }
    static CNonLinSaveData GetDefaultNonLinSave() { return CNonLinSaveData(); }

    CNonLinearData* GetNonLinearData() { return &m_ModelData; }
    CNonLinOptsData* GetNonLinOptsData() { return &m_OptsData; }
    CNonLinSaveData* GetNonLinSaveData() { return &m_SaveData; }

    int GetAll(CNonLinearData& model, CNonLinOptsData& opts, CNonLinSaveData& save) const
    {
        return kal::CopyFieldsOut(*this, model, opts, save);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CNonLinearData& model, const CNonLinOptsData& opts, const CNonLinSaveData& save)
    {
        return kal::CopyFieldsIn(*this, model, opts, save);
    }

    PageList Pages() override { return {&m_ModelData, &m_OptsData, &m_SaveData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CNonLinearPagesData>;
        using T = CNonLinearPagesData;
        return std::tuple{F::Page(&T::m_ModelData), F::Page(&T::m_OptsData), F::Page(&T::m_SaveData)};
    }

private:
    CNonLinearData m_ModelData;
    CNonLinOptsData m_OptsData;
    CNonLinSaveData m_SaveData;
};

class CNonLinearTabData : public CNonLinearPagesData {
    DECLARE_SERIAL(CNonLinearTabData)
};

class CNonLinLossTabData : public CNonLinearPagesData {
    DECLARE_SERIAL(CNonLinLossTabData)
};
