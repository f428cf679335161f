// CRsmPlotPageDlg: the plot page of the response surface (template 8790):
// contours or a surface, the factors on the horizontal and vertical axes
// (chosen among the factor page's factors), the values the other factors
// are held at, and the points drawn along each axis.
//
// Rules of the page: the axes' lists and the grid's rows follow the factor
// page (a grid row per factor; the axes' rows are not read); OK needs two
// different factors on the axes and held values that are numbers.
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/ResponseSurface/KDGRsmPlotPageData.h"

#include <vector>

class CRsmPlotPageDlg : public CGUIPageDlg<CRsmPlotPageData, CKVGridMultiCtrlBaseDlg>, public CRsmPlotPageDlgIds {
    DECLARE_DYNAMIC(CRsmPlotPageDlg)
public:
    enum Column { colNumber = 0, colName = 1, colValue = 2 };
    static constexpr UINT kMsgHeldValue = 8980;
    static constexpr UINT kMsgSameAxes = 8981;

    explicit CRsmPlotPageDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRsmPlotPageDlg"; }

    DECLARE_MESSAGE_MAP()

private:
    std::vector<CString> FactorNames() const;
    // The axes' lists and the grid's rows for the factor page's factors; an
    // axis keeps its factor while there is one, else takes the first free.
    void SyncFactors();
    void FillAxis(UINT combo, const CString& keep, const CString& avoid, const std::vector<CString>& names);
    CString ChosenAxis(UINT combo) const;
};
