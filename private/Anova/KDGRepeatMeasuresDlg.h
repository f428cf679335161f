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

protected:
    void OnOnOffCheck();

    DECLARE_MESSAGE_MAP()

private:
    void FillGridFromData();
    void FillDataFromGrid();
};
