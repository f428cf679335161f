// CRsmOptimizationDlg: the optimization page of the response surface
// (template 8760). A grid row per response of the factor page, in its
// order: the goal (MAX, MIN, TARGET, or empty for none), the low, target
// and high bounds of its desirability and its weight; then the search by
// desirability or by ridge analysis out to a largest radius.
//
// Rules of the page:
//  - the grid's rows follow the factor page's responses, each keeping its
//    entries; the radius belongs to ridge analysis;
//  - OK needs a goal; with desirability MAX and MIN need a low and a high
//    bound, TARGET all three, rising; weights lie from 0.1 to 10; a ridge
//    follows exactly one response to be maximized or minimized.
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/ResponseSurface/KDGRsmOptimizationData.h"

class CRsmOptimizationDlg : public CGUIPageDlg<CRsmOptimizationData, CKVGridMultiCtrlBaseDlg>,
                            public CRsmOptimizationDlgIds {
    DECLARE_DYNAMIC(CRsmOptimizationDlg)
public:
    enum Column { colNumber = 0, colName = 1, colGoal = 2, colLow = 3, colTarget = 4, colHigh = 5, colWeight = 6 };
    static constexpr UINT kMsgGoalWord = 8960;
    static constexpr UINT kMsgNoGoal = 8961;
    static constexpr UINT kMsgBoundsMissing = 8962;
    static constexpr UINT kMsgBoundsOrder = 8963;
    static constexpr UINT kMsgNotANumber = 8964;
    static constexpr UINT kMsgWeight = 8965;
    static constexpr UINT kMsgRidgeGoal = 8966;
    static constexpr double kMinWeight = 0.1;
    static constexpr double kMaxWeight = 10;

    explicit CRsmOptimizationDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRsmOptimizationDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    // Rows for the factor page's responses, each keeping its entries.
    void SyncGoals();
    // Reads the grid into the working copy: the message of the first entry
    // that cannot be read, else 0.
    UINT ReadGoals();
    UINT ValidateGoals() const;
};
