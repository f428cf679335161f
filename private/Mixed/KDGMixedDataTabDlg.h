// The data structure of a mixed regression (command 2016, template 101):
// one page, under the dialog's caption 2193.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Mixed/KDGMixRegDataDlg.h"

class CMixedDataTabData : public CGUITabData {
    DECLARE_SERIAL(CMixedDataTabData)
public:
    CMixedDataTabData() { LinkPages(); }
    CMixedDataTabData(const CMixedDataTabData& other) : CMixedDataTabData() { *this = other; }
    CMixedDataTabData& operator=(const CMixedDataTabData&) = default;

    static CMixRegDataData GetDefaultStructure() { return CMixRegDataData(); }
    CMixRegDataData* GetStructureData() { return &m_StructureData; }

    int GetAll(CMixRegDataData& page) const { return kal::CopyFieldsOut(*this, page); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CMixRegDataData& page) { return kal::CopyFieldsIn(*this, page); }

    PageList Pages() override { return {&m_StructureData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedDataTabData>;
        return std::tuple{F::Page(&CMixedDataTabData::m_StructureData)};
    }

private:
    CMixRegDataData m_StructureData;
};

class CMixedDataTabDlg : public CGUIDataDlg<CMixedDataTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMixedDataTabDlg)
public:
    explicit CMixedDataTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGMixedDataTabDlg"; }

private:
    CMixRegDataDlg m_StructureDlg{this};
};
