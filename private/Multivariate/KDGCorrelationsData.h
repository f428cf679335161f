// CCorrelationsData: the first page of the correlations tab. The variables
// (one set, or rows crossed with columns), the kind of data and its
// measure, the deletion of missing values and a file for the matrix;
// written as the module line, an optional save line and the measure line,
// "PEARSON X Y", to which the options and resampling pages join their
// clauses. Without its tab the page writes no measure line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/correlations.h"

#include <array>

class CCorrelationsTabData;

class CCorrelationsData : public CGUIBaseObj {
    DECLARE_SERIAL(CCorrelationsData)
public:
    static constexpr UINT kModuleCorr = 12902;

    // The data types in the order of their radio group.
    enum DataType { dataContinuous = 0, dataDistance = 1, dataRankOrder = 2, dataUnordered = 3, dataBinary = 4 };

    // Each data type's radio button and the combo of its measures, in the
    // order of the radio group.
    struct DataTypeMeasures {
        UINT radio;
        UINT combo;
    };
    static constexpr std::array<DataTypeMeasures, 5> kDataTypes = {{
        {CCorrelationsDlgIds::IDC_CONTINUOUS, CCorrelationsDlgIds::IDC_CONTINUOUS_COMBO},
        {CCorrelationsDlgIds::IDC_DISTANCE, CCorrelationsDlgIds::IDC_DISTANCE_COMBO},
        {CCorrelationsDlgIds::IDC_RANK_ORDER, CCorrelationsDlgIds::IDC_RANK_ORDER_COMBO},
        {CCorrelationsDlgIds::IDC_UNORDERED, CCorrelationsDlgIds::IDC_UNORDERED_COMBO},
        {CCorrelationsDlgIds::IDC_BINARY, CCorrelationsDlgIds::IDC_BINARY_COMBO},
    }};

    CCorrelationsData() { kal::ResetFields(*this); }

    static int GetDefaultSaveCheck() { return 0; }
    static int GetDefaultSetsRadio() { return 0; }
    static int GetDefaultContinuousDataRadio() { return dataContinuous; }
    static int GetDefaultListWiseRadio() { return 0; }
    static int GetDefaultContinuousDataCombo() { return 0; }
    static int GetDefaultDistanceCombo() { return 0; }
    static int GetDefaultRankOrderDataCombo() { return 0; }
    static int GetDefaultUnorderedDataCombo() { return 0; }
    static int GetDefaultBinaryDataCombo() { return 0; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& rows,
               CGUIArray<CGUIDataVariable>& columns, int& saveCheck, int& setsRadio, int& continuousDataRadio,
               int& listWiseRadio, int& continuousDataCombo, int& distanceCombo, int& rankOrderDataCombo,
               int& unorderedDataCombo, int& binaryDataCombo, CString& saveFileEdit) const
    {
        return kal::CopyFieldsOut(*this, source, rows, columns, saveCheck, setsRadio, continuousDataRadio,
                                  listWiseRadio, continuousDataCombo, distanceCombo, rankOrderDataCombo,
                                  unorderedDataCombo, binaryDataCombo, saveFileEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& rows,
               const CGUIArray<CGUIDataVariable>& columns, int saveCheck, int setsRadio, int continuousDataRadio,
               int listWiseRadio, int continuousDataCombo, int distanceCombo, int rankOrderDataCombo,
               int unorderedDataCombo, int binaryDataCombo, const CString& saveFileEdit)
    {
        return kal::CopyFieldsIn(*this, source, rows, columns, saveCheck, setsRadio, continuousDataRadio, listWiseRadio,
                                 continuousDataCombo, distanceCombo, rankOrderDataCombo, unorderedDataCombo,
                                 binaryDataCombo, saveFileEdit);
    }

    int GetContinuousDataRadio() const { return m_ContinuousDataRadio; }
    int GetListWiseRadio() const { return m_ListWiseRadio; }
    int GetContinuousDataCombo() const { return m_ContinuousDataCombo; }

    // The keyword of the measure chosen for the data type (empty for an
    // unknown type).
    CString GetMeasureKeyword() const;

    // The owning tab settings; null when these settings stand alone.
    using CGUIBaseObj::GetParent;
    void GetParent(CCorrelationsTabData*& parent) const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list lists the data sheet's variables; the rows and
    // columns keep those the sheet still has.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 2034).
    // Radio groups are named by their first button.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCorrelationsData>;
        using Ids = CCorrelationsDlgIds;
        return std::tuple{
            F::Source(&CCorrelationsData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CCorrelationsData::m_RowVariables, Ids::IDC_ROW_LIST),
            F::List(&CCorrelationsData::m_ColumnVariables, Ids::IDC_COLUMN_LIST),
            F::Value(&CCorrelationsData::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultSaveCheck),
            F::Value(&CCorrelationsData::m_SetsRadio, Ids::IDC_ONE_SET, &GetDefaultSetsRadio),
            F::Value(&CCorrelationsData::m_ContinuousDataRadio, Ids::IDC_CONTINUOUS, &GetDefaultContinuousDataRadio),
            F::Value(&CCorrelationsData::m_ListWiseRadio, Ids::IDC_LISTWISE, &GetDefaultListWiseRadio),
            F::Value(&CCorrelationsData::m_ContinuousDataCombo, Ids::IDC_CONTINUOUS_COMBO,
                     &GetDefaultContinuousDataCombo),
            F::Value(&CCorrelationsData::m_DistanceCombo, Ids::IDC_DISTANCE_COMBO, &GetDefaultDistanceCombo),
            F::Value(&CCorrelationsData::m_RankOrderDataCombo, Ids::IDC_RANK_ORDER_COMBO,
                     &GetDefaultRankOrderDataCombo),
            F::Value(&CCorrelationsData::m_UnorderedDataCombo, Ids::IDC_UNORDERED_COMBO, &GetDefaultUnorderedDataCombo),
            F::Value(&CCorrelationsData::m_BinaryDataCombo, Ids::IDC_BINARY_COMBO, &GetDefaultBinaryDataCombo),
            F::Value(&CCorrelationsData::m_SaveFileEdit, Ids::IDC_SAVE_FILE_EDIT, &GetDefaultSaveEdit),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_RowVariables;
    CGUIArray<CGUIDataVariable> m_ColumnVariables;
    int m_SaveCheck;
    int m_SetsRadio;
    int m_ContinuousDataRadio;
    int m_ListWiseRadio;
    int m_ContinuousDataCombo;
    int m_DistanceCombo;
    int m_RankOrderDataCombo;
    int m_UnorderedDataCombo;
    int m_BinaryDataCombo;
    CString m_SaveFileEdit;
};
