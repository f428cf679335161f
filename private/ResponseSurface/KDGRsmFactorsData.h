// CRsmFactorsData: the factor page the response-surface dialogs share. The
// responses, the factors with the low and high setting of each (the range
// that coded units map to -1 and +1, and the region an optimization
// searches and a plot draws), whether the coefficients are in coded units,
// and for estimation a block variable. Written as the module line, "MODEL",
// "BLOCK" and "FACTOR"; the second page of each dialog writes its own lines
// after them. The analysis it serves is fixed by the dialog that owns it
// (see CRsmFactorsKindData).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/rsm.h"

enum class RsmKind { Estimate, Optimization, Plot };

class CRsmFactorsData : public CGUIBaseObj {
    DECLARE_SERIAL(CRsmFactorsData)
public:
    static constexpr UINT kModuleRsm = 13011;
    // The units radio group: uncoded, coded.
    static constexpr UINT kUnitsRadio = 8711;
    static constexpr UINT kItemCoded = 8712;

    explicit CRsmFactorsData(RsmKind kind = RsmKind::Estimate) : m_Kind(kind) { kal::ResetFields(*this); }

    RsmKind GetKind() const { return m_Kind; }
    // Every analysis but estimation works inside the factors' ranges, and
    // coded units are made from them.
    static bool NeedsRanges(RsmKind kind, bool coded) { return kind != RsmKind::Estimate || coded; }
    bool IsCoded() const;
    const CGUIArray<CGUIDataVariable>& GetResponseList() const { return m_ResponseList; }
    const CGUIArray<CGUIDataVariable>& GetFactorList() const { return m_FactorList; }
    // The range of factor `i`: NaN where none is given.
    double GetLow(int i) const { return i < m_LowList.GetSize() ? m_LowList[i] : None(); }
    double GetHigh(int i) const { return i < m_HighList.GetSize() ? m_HighList[i] : None(); }
    static double None();

    static int GetDefaultUnitsRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& responses,
               CGUIArray<CGUIDataVariable>& factors, CGUIArray<CGUIDataVariable>& block, CGUIArray<double>& low,
               CGUIArray<double>& high, int& units) const
    {
        return kal::CopyFieldsOut(*this, source, responses, factors, block, low, high, units);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& responses,
               const CGUIArray<CGUIDataVariable>& factors, const CGUIArray<CGUIDataVariable>& block,
               const CGUIArray<double>& low, const CGUIArray<double>& high, int units)
    {
        return kal::CopyFieldsIn(*this, source, responses, factors, block, low, high, units);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; the roles' variables it no
    // longer has leave their lists, and their ranges with them.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the factor page (template
    // 8700). The ranges live in the page's grid, which the page exchanges
    // itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmFactorsData>;
        using Ids = CRsmFactorsDlgIds;
        using D = CRsmFactorsData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_ResponseList, Ids::IDC_RESPONSE_LIST),
            F::List(&D::m_FactorList, Ids::IDC_FACTOR_LIST),
            F::List(&D::m_BlockList, Ids::IDC_BLOCK_LIST),
            F::List(&D::m_LowList),
            F::List(&D::m_HighList),
            F::Value(&D::m_UnitsRadio, Ids::IDC_UNCODED_RADIO, &GetDefaultUnitsRadio),
        };
    }

private:
    friend class CRsmFactorsDlg; // exchanges the ranges itself

    RsmKind m_Kind;
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_ResponseList;
    CGUIArray<CGUIDataVariable> m_FactorList;
    CGUIArray<CGUIDataVariable> m_BlockList;
    CGUIArray<double> m_LowList;
    CGUIArray<double> m_HighList;
    int m_UnitsRadio;
};

// The factor page's settings as one dialog owns them: the analysis is part
// of the type, so a reset or a default-constructed copy keeps it.
template <RsmKind Kind>
class CRsmFactorsKindData : public CRsmFactorsData {
public:
    CRsmFactorsKindData() : CRsmFactorsData(Kind) {}
};
