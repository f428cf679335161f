// CRsmPlotPageData: the plot page of the response surface (2079): contours
// or a surface of the fitted responses over two factors, the other factors
// held at chosen values (the middle of their ranges where none is given),
// and how finely it is drawn. Written as the "PLOT" line after the factor
// page's lines.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/rsm.h"

class CRsmPlotPageData : public CGUIBaseObj {
    DECLARE_SERIAL(CRsmPlotPageData)
public:
    // The drawing radio group: contours, surface.
    static constexpr UINT kDrawRadio = 8791;
    static constexpr UINT kItemSurface = 8792;
    static constexpr int kMinPoints = 5;
    static constexpr int kMaxPoints = 200;

    CRsmPlotPageData() { kal::ResetFields(*this); }

    static int GetDefaultDrawRadio() { return 0; }
    static CString GetDefaultAxis() { return {}; }
    static CGUIData<int> GetDefaultPointsEdit() { return CGUIData<int>(1, 25, 25, 0, 1); }

    int GetAll(int& draw, CString& x, CString& y, CGUIArray<CString>& heldNames, CGUIArray<double>& heldValues,
               CGUIData<int>& points) const
    {
        return kal::CopyFieldsOut(*this, draw, x, y, heldNames, heldValues, points);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int draw, const CString& x, const CString& y, const CGUIArray<CString>& heldNames,
               const CGUIArray<double>& heldValues, const CGUIData<int>& points)
    {
        return kal::CopyFieldsIn(*this, draw, x, y, heldNames, heldValues, points);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the plot page (template
    // 8790); the axes' lists and the held values follow the factor page, so
    // the page exchanges them itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmPlotPageData>;
        using Ids = CRsmPlotPageDlgIds;
        using D = CRsmPlotPageData;
        return std::tuple{
            F::Value(&D::m_DrawRadio, Ids::IDC_CONTOUR_RADIO, &GetDefaultDrawRadio),
            F::Value(&D::m_XFactor, 0, &GetDefaultAxis),
            F::Value(&D::m_YFactor, 0, &GetDefaultAxis),
            F::List(&D::m_HeldNames),
            F::List(&D::m_HeldValues),
            F::Value(&D::m_PointsEdit, Ids::IDC_POINTS_EDIT, &GetDefaultPointsEdit).Range(kMinPoints, kMaxPoints),
        };
    }

private:
    friend class CRsmPlotPageDlg; // exchanges the axes and held values itself

    // A variable's name as command text (empty for a name that cannot be
    // written).
    CString NameText(const CString& name) const;

    int m_DrawRadio;
    CString m_XFactor;
    CString m_YFactor;
    CGUIArray<CString> m_HeldNames;
    CGUIArray<double> m_HeldValues;
    CGUIData<int> m_PointsEdit;
};
