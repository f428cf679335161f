// CBootStrapDlg: the resampling page (template 5400).
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUIPageDlg.h"

class CBootStrapDlg : public CGUIPageDlg<CBootStrapData>, public CBootStrapDlgIds {
    DECLARE_DYNAMIC(CBootStrapDlg)
public:
    // Messages for entries that are not whole numbers or out of range.
    static constexpr UINT kMsgNotWhole = 2011;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CBootStrapDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "framework/BootStrapDlg"; }

protected:
    void OnMethodRadio();

    DECLARE_MESSAGE_MAP()
};
