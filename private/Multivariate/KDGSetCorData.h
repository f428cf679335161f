// CSetCorData: the set correlation page. Two sets of variables, Y and X,
// each with an optional set partialled from it, and the multivariate tests
// of their association. Written as the module line, the "MODEL" line (Y =
// X, with the partialled sets as options) and the "ESTIMATE" line with the
// tests, which the resampling page extends.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/setcor.h"

class CSetCorData : public CGUIBaseObj {
    DECLARE_SERIAL(CSetCorData)
public:
    static constexpr UINT kModuleSetCor = 12968;

    CSetCorData() { kal::ResetFields(*this); }

    // Rao's F is the usual test of a set correlation; the trace and root
    // tests are asked for.
    static int GetDefaultRaoCheck() { return 1; }
    static int GetDefaultOtherTestCheck() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& setY,
               CGUIArray<CGUIDataVariable>& partialY, CGUIArray<CGUIDataVariable>& setX,
               CGUIArray<CGUIDataVariable>& partialX, int& rao, int& pillai, int& hotelling, int& roy) const
    {
        return kal::CopyFieldsOut(*this, source, setY, partialY, setX, partialX, rao, pillai, hotelling, roy);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& setY,
               const CGUIArray<CGUIDataVariable>& partialY, const CGUIArray<CGUIDataVariable>& setX,
               const CGUIArray<CGUIDataVariable>& partialX, int rao, int pillai, int hotelling, int roy)
    {
        return kal::CopyFieldsIn(*this, source, setY, partialY, setX, partialX, rao, pillai, hotelling, roy);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 6680).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSetCorData>;
        using Ids = CSetCorDlgIds;
        using D = CSetCorData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_SetYList, Ids::IDC_SET_Y_LIST),
            F::List(&D::m_PartialYList, Ids::IDC_PARTIAL_Y_LIST),
            F::List(&D::m_SetXList, Ids::IDC_SET_X_LIST),
            F::List(&D::m_PartialXList, Ids::IDC_PARTIAL_X_LIST),
            F::Value(&D::m_RaoCheck, Ids::IDC_RAO_CHECK, &GetDefaultRaoCheck),
            F::Value(&D::m_PillaiCheck, Ids::IDC_PILLAI_CHECK, &GetDefaultOtherTestCheck),
            F::Value(&D::m_HotellingCheck, Ids::IDC_HOTELLING_CHECK, &GetDefaultOtherTestCheck),
            F::Value(&D::m_RoyCheck, Ids::IDC_ROY_CHECK, &GetDefaultOtherTestCheck),
        };
    }

private:
    friend class CSetCorDlg; // reads the values it validates

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_SetYList;
    CGUIArray<CGUIDataVariable> m_PartialYList;
    CGUIArray<CGUIDataVariable> m_SetXList;
    CGUIArray<CGUIDataVariable> m_PartialXList;
    int m_RaoCheck;
    int m_PillaiCheck;
    int m_HotellingCheck;
    int m_RoyCheck;
};
