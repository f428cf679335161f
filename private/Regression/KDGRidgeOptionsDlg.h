// CRidgeOptionsDlg: the ridge page of the ridge regression dialog
// (template 7040).
//
// Rules of the page:
//  - the constant's edit is in use with a single value, the three grid
//    edits with a grid; the file edit while saving is asked for;
//  - a grid runs upwards, by a step above 0, over at most 1000 values.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRidgeOptionsData.h"

class CRidgeOptionsDlg : public CGUIPageDlg<CRidgeOptionsData>, public CRidgeOptionsDlgIds {
    DECLARE_DYNAMIC(CRidgeOptionsDlg)
public:
    static constexpr UINT kMsgGridOrder = 7055;
    static constexpr UINT kMsgGridStep = 7056;

    explicit CRidgeOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGRidgeOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    bool IsGrid() const { return IsDlgButtonChecked(IDC_GRID_RADIO) != 0; }
};
