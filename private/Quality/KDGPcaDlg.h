// CPcaDlg: the process-capability dialog (template 5540). The user moves
// numeric measurements to the measurement list and, optionally, variables
// that form subgroups; gives the tolerance limits and the target; and
// chooses the sigma of the fitted curve and the indices.
//
// Rules of the dialog: a measurement and at least one tolerance limit
// are needed; given both, the lower lies below the upper, and a target
// lies between them.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGPcaData.h"

class CPcaDlg : public CGUIPageDlg<CPcaData>, public CPcaDlgIds {
    DECLARE_DYNAMIC(CPcaDlg)
public:
    enum : UINT { ID_MENU_MEASURE = 33051, ID_MENU_GROUP = 33052 };
    static constexpr UINT kMsgNoMeasurement = 12940;
    static constexpr UINT kMsgNoLimit = 12944;
    static constexpr UINT kMsgLimitsOrder = 12945;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CPcaDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGPcaDlg"; }

protected:
    DECLARE_MESSAGE_MAP()
};
