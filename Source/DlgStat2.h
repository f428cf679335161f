// CDlgStat2: the module object. It keeps the host's services, owns the
// shared dialog services and the nine menu-group handlers, and is reachable
// from everywhere in the module through g_pDlgStat2Module.
#pragma once

#include "Source/IDlgStat2.h"
#include "platform/CString.h"

#include <string>

class IDlgBase;
class IKernel;
class IData;

class CDlgStat2 : public IDlgStat2 {
public:
    explicit CDlgStat2(IGlobal* pGlobal);
    ~CDlgStat2() override;
    CDlgStat2(const CDlgStat2&) = delete;
    CDlgStat2& operator=(const CDlgStat2&) = delete;

    IGlobal* GetGlobal() override { return m_pGlobal; }
    void Release() override;
    void PrintModuleInfo() override;
    std::wstring& GetModuleName() override { return m_strName; }
    std::wstring& SetModuleName(const std::wstring& name) override { return m_strName = name; }
    bool ReleaseCountedRef(KalCountedRef* holder, int reason) override;
    void NoOperation() override {}
    IBinReader* GetResourceHandle() override;

    CAnalysisofVarianceMsg* GetAnalysisofVarianceMsg() override { return m_pAnalysisofVarianceMsg; }
    CCorrelationsMsg* GetCorrelationsMsg() override { return m_pCorrelationsMsg; }
    CGeneralLinearModelMsg* GetGeneralLinearModelMsg() override { return m_pGeneralLinearModelMsg; }
    CMixedModelMsg* GetMixedModelMsg() override { return m_pMixedModelMsg; }
    CMixedRegressionMsg* GetMixedRegressionMsg() override { return m_pMixedRegressionMsg; }
    CMultivariateAnalysisMsg* GetMultivariateAnalysisMsg() override { return m_pMultivariateAnalysisMsg; }
    CQualityAnalysisMsg* GetQualityAnalysisMsg() override { return m_pQualityAnalysisMsg; }
    CRegressionMsg* GetRegressionMsg() override { return m_pRegressionMsg; }
    CStat2SingleMenuItemsMsg* GetStat2SingleMenuItemsMsg() override { return m_pStat2SingleMenuItemsMsg; }

    IGlobal* m_pGlobal;
    IDlgBase* m_pDlgBase = nullptr;
    IKernel* m_pKernel = nullptr;
    IData* m_pData = nullptr;
    std::wstring m_strName;
    CAnalysisofVarianceMsg* m_pAnalysisofVarianceMsg = nullptr;
    CCorrelationsMsg* m_pCorrelationsMsg = nullptr;
    CGeneralLinearModelMsg* m_pGeneralLinearModelMsg = nullptr;
    CMixedModelMsg* m_pMixedModelMsg = nullptr;
    CMixedRegressionMsg* m_pMixedRegressionMsg = nullptr;
    CMultivariateAnalysisMsg* m_pMultivariateAnalysisMsg = nullptr;
    CQualityAnalysisMsg* m_pQualityAnalysisMsg = nullptr;
    CRegressionMsg* m_pRegressionMsg = nullptr;
    CStat2SingleMenuItemsMsg* m_pStat2SingleMenuItemsMsg = nullptr;
};

// The module object of the process: null until GetModuleFactory runs, then
// the module it created last. Not cleared when that module is destroyed.
extern CDlgStat2* g_pDlgStat2Module;

// Constants the package's shared headers define for every library; nothing
// in this module reads them.
extern const CString g_strKalCrashRescueFile;
extern const CString g_strKalUserTop;
extern const CString g_strKalAppTop;
extern const CString g_strMarkupLineBreak;

// Private window messages of the module, registered by name at load.
extern const unsigned int WM_KAL_PRINT_ASSERT_ERROR; // "OnPrintAssertError"
extern const unsigned int WM_KAL_APPLY_DLG;          // "ApplyDlg"
extern const unsigned int WM_KAL_LOGIT_SETS_CHANGED; // "LogitSetsChanged"
extern const unsigned int WM_KAL_LOGIT_SETS_APPLY;   // "LogitSetsApply"
