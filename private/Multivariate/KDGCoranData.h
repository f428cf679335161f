// CCoranData: the model page of the correspondence analysis dialog. The row
// and column variables of the table, variables shown as supplementary points
// (placed in the map without shaping it), and a frequency weight for data
// entered as counts. Written as the module line, an optional "FREQ" line,
// the "MODEL" line (rows = columns) and the "ESTIMATE" line, which the
// options page extends.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/coran.h"

class CCoranData : public CGUIBaseObj {
    DECLARE_SERIAL(CCoranData)
public:
    static constexpr UINT kModuleCoran = 12967;

    CCoranData() { kal::ResetFields(*this); }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& rows,
               CGUIArray<CGUIDataVariable>& columns, CGUIArray<CGUIDataVariable>& supplementary,
               CGUIArray<CGUIDataVariable>& weight) const
    {
        return kal::CopyFieldsOut(*this, source, rows, columns, supplementary, weight);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& rows,
               const CGUIArray<CGUIDataVariable>& columns, const CGUIArray<CGUIDataVariable>& supplementary,
               const CGUIArray<CGUIDataVariable>& weight)
    {
        return kal::CopyFieldsIn(*this, source, rows, columns, supplementary, weight);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the model page (template
    // 6640).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCoranData>;
        using Ids = CCoranDlgIds;
        return std::tuple{
            F::Source(&CCoranData::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&CCoranData::m_RowList, Ids::IDC_ROW_LIST),
            F::List(&CCoranData::m_ColumnList, Ids::IDC_COLUMN_LIST),
            F::List(&CCoranData::m_SupplementaryList, Ids::IDC_SUPPLEMENTARY_LIST),
            F::List(&CCoranData::m_WeightList, Ids::IDC_WEIGHT_LIST),
        };
    }

private:
    friend class CCoranDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_RowList;
    CGUIArray<CGUIDataVariable> m_ColumnList;
    CGUIArray<CGUIDataVariable> m_SupplementaryList;
    CGUIArray<CGUIDataVariable> m_WeightList;
};
