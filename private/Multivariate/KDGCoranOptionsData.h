// CCoranOptionsData: the options page of the correspondence analysis
// dialog. The number of dimensions of the map, how row and column points are
// scaled (the normalization), and a file for the coordinates. Its clauses
// join the "ESTIMATE" line; its save line goes in front of it.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/coran.h"

class CCoranOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CCoranOptionsData)
public:
    static constexpr UINT kNormalizationList = 6670;
    static constexpr int kMaxDimensions = 100;

    CCoranOptionsData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultDimensionsEdit() { return CGUIData<int>(2); }
    // Symmetric: rows and columns in principal coordinates alike.
    static int GetDefaultNormalizationCombo() { return 0; }
    static int GetDefaultSaveCheck() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIData<int>& dimensions, int& normalization, int& save, CString& file) const
    {
        return kal::CopyFieldsOut(*this, dimensions, normalization, save, file);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<int>& dimensions, int normalization, int save, const CString& file)
    {
        return kal::CopyFieldsIn(*this, dimensions, normalization, save, file);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the options page (template
    // 6660).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCoranOptionsData>;
        using Ids = CCoranOptionsDlgIds;
        using D = CCoranOptionsData;
        return std::tuple{
            F::Value(&D::m_DimensionsEdit, Ids::IDC_DIMENSIONS_EDIT, &GetDefaultDimensionsEdit)
                .Range(1, kMaxDimensions),
            F::Value(&D::m_NormalizationCombo, Ids::IDC_NORMALIZATION_COMBO, &GetDefaultNormalizationCombo),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    CGUIData<int> m_DimensionsEdit;
    int m_NormalizationCombo;
    int m_SaveCheck;
    CString m_SaveEdit;
};
