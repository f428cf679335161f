// CBootStrapDlg: the resampling page (template 5400).
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUIDataDlg.h"

class CBootStrapDlg : public CGUIDataDlg<CBootStrapData> {
    DECLARE_DYNAMIC(CBootStrapDlg)
public:
    enum : UINT {
        IDD = 5400,
        IDC_METHOD_NONE = 5401, // radio group: none, bootstrap, jackknife, subsampling
        IDC_METHOD_BOOTSTRAP = 5402,
        IDC_METHOD_JACKKNIFE = 5403,
        IDC_METHOD_SUBSAMPLING = 5404,
        IDC_SAMPLES = 5410,
        IDC_SAMPLE_SIZE = 5411,
        IDC_RANDOM_SEED = 5412,
    };
    // Messages for entries that are not whole numbers or out of range.
    static constexpr UINT kMsgNotWhole = 2011;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CBootStrapDlg(CWnd* parent = nullptr);

    int GetAll() override;
    int SetAll() override;
    int GetAllDefault() override;
    int SetAllDefault() override;
    void UpdateDependentWindows() override;
    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "framework/BootStrapDlg"; }

protected:
    void OnMethodRadio();

    DECLARE_MESSAGE_MAP()

private:
    int m_nMethod = 0;
    CGUIData<int> m_Samples;
    CGUIData<int> m_SampleSize;
    CGUIData<unsigned int> m_RandomSeed;
};
