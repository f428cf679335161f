// CRepeatMeasuresDlg: the repeated-measures page (template 2011). A grid
// row per within-subject factor: number, name, levels, metric. The page is
// in use only when the model page has at least two dependent variables.
#pragma once

#include "framework/GUIPageDlg.h"
#include "framework/KVGridMultiCtrlBaseDlg.h"
#include "private/Anova/KDGRepeatMeasuresData.h"

class CRepeatMeasuresDlg : public CGUIPageDlg<CRepeatMeasuresData, CKVGridMultiCtrlBaseDlg>,
                           public CRepeatMeasuresDlgIds {
    DECLARE_DYNAMIC(CRepeatMeasuresDlg)
public:
    enum Column { colNumber = 0, colName = 1, colLevels = 2, colMetric = 3 };
    static constexpr UINT kMsgLevelRange = 2005;
    static constexpr UINT kMsgLevelProduct = 2006;
    static constexpr UINT kMsgSingleLevel = 2007;
    static constexpr UINT kMsgMetric = 2013;
    static constexpr UINT kMsgDuplicateName = 2014;
    static constexpr UINT kNeedsTwoDependents = 2268;

    explicit CRepeatMeasuresDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent, IDC_GRID) {}

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    int OKLike() override;
    void UpdateDependentWindows() override;
    BOOL IsWindowEnabled() override;
    CString GetOutOfUseReason() override;
    const char* GetSourceFile() const override { return "Source/KDGRepeatMeasuresDlg"; }

    // The dependent variables of the tab dialog's model page (owners 2263,
    // 2264, 2265); 0 for any other owner.
    int GetDependentVariableCount() const;
    // 0 when the levels fit the dependent variables, else the message id.
    UINT ValidateLevels();
    // 0 when every metric lists one number per level and the names are
    // distinct and free of control characters, else the message id.
    UINT ValidateNamesAndMetrics();

    // The same checks of factors given as lists, for any dialog that
    // defines repeated-measures factors: `levels` against `dependents`,
    // the names and metrics against each other.
    static UINT LevelsProblem(const CGUIArray<int>& levels, int dependents);
    static UINT NamesAndMetricsProblem(const CGUIArray<CString>& names, const CGUIArray<int>& levels,
                                       const CGUIArray<CString>& metrics);
    // A grid of the columns of Column shows the factors, and gives them
    // back (rows left empty are skipped; levels that are no whole number
    // read as 0, which the level check refuses).
    static void FillGrid(CGridCtrl& grid, const CGUIArray<CString>& names, const CGUIArray<int>& levels,
                         const CGUIArray<CString>& metrics);
    static void ReadGrid(const CGridCtrl& grid, CGUIArray<CString>& names, CGUIArray<int>& levels,
                         CGUIArray<CString>& metrics);

protected:
    void OnOnOffCheck();

    DECLARE_MESSAGE_MAP()

private:
    void FillGridFromData();
    void FillDataFromGrid();
};
