// CRsmFactorsDlg: the factor page of the response-surface dialogs
// (template 8700). The user moves numeric responses and two or more numeric
// factors from the source list, types each factor's low and high setting in
// the grid (a row per factor, in the order of the factor list), and chooses
// coded or uncoded units; for estimation also a block variable.
//
// Rules of the page:
//  - the grid's rows follow the factor list: a factor moved in gets a row,
//    one taken out takes its range along; the name column is not read;
//  - the block variable belongs to estimation and is hidden elsewhere;
//  - OK needs a response and two factors, no variable in two roles, ranges
//    that are numbers with low below high, and every range where the
//    analysis works inside them (coded units, optimization, plots).
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/ResponseSurface/KDGRsmFactorsData.h"

#include <vector>

class CRsmFactorsDlg : public CGUIPageDlg<CRsmFactorsData, CKVGridMultiCtrlBaseDlg>, public CRsmFactorsDlgIds {
    DECLARE_DYNAMIC(CRsmFactorsDlg)
public:
    enum Column { colNumber = 0, colName = 1, colLow = 2, colHigh = 3 };
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_RESPONSE = 8951, ID_MENU_FACTOR = 8952, ID_MENU_BLOCK = 8953 };
    static constexpr int kMaxFactors = 10;
    static constexpr UINT kMsgNoResponse = 8940;
    static constexpr UINT kMsgTooFewFactors = 8941;
    static constexpr UINT kMsgTwoRoles = 8942;
    static constexpr UINT kMsgRangeNotANumber = 8943;
    static constexpr UINT kMsgRangeOrder = 8944;
    static constexpr UINT kMsgRangeMissing = 8945;

    explicit CRsmFactorsDlg(CWnd* parent = nullptr);

    // The responses and factors the page shows now, in order (read by the
    // other pages).
    std::vector<CString> ResponseNames();
    std::vector<CString> FactorNames();

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRsmFactorsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    bool IsEstimation() const { return !m_pData || m_pData->GetKind() == RsmKind::Estimate; }
    // Rebuilds the grid's rows for the factor list, each factor keeping the
    // range its row showed.
    void SyncRanges();
    // Reads the grid into the working copy; the message of the first entry
    // that is not a number, else 0.
    UINT ReadRanges();
    UINT ValidateRanges() const;
};
