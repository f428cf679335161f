// Variance components (command 2069, template 101): one page, captioned
// 2197, under the dialog's caption 2392.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Mixed/KDGVarCompDlg.h"

class CMixedModelVarianceComponentsTabData : public CGUITabData {
    DECLARE_SERIAL(CMixedModelVarianceComponentsTabData)
public:
    CMixedModelVarianceComponentsTabData() { LinkPages(); }
    CMixedModelVarianceComponentsTabData(const CMixedModelVarianceComponentsTabData& other)
        : CMixedModelVarianceComponentsTabData()
    {
        *this = other;
    }
    CMixedModelVarianceComponentsTabData& operator=(const CMixedModelVarianceComponentsTabData&) = default;

    static CVarCompData GetDefaultVarComp() { return CVarCompData(); }
    CVarCompData* GetVarCompData() { return &m_VarCompData; }

    int GetAll(CVarCompData& page) const { return kal::CopyFieldsOut(*this, page); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CVarCompData& page) { return kal::CopyFieldsIn(*this, page); }

    PageList Pages() override { return {&m_VarCompData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedModelVarianceComponentsTabData>;
        return std::tuple{F::Page(&CMixedModelVarianceComponentsTabData::m_VarCompData)};
    }

private:
    CVarCompData m_VarCompData;
};

class CMixedModelVarianceComponentsTabDlg : public CGUIDataDlg<CMixedModelVarianceComponentsTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMixedModelVarianceComponentsTabDlg)
public:
    explicit CMixedModelVarianceComponentsTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGMixedModelVarianceComponentsTabDlg"; }

private:
    CVarCompDlg m_VarCompDlg{this};
};
