#include "Source/DlgStat2.h"

#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/CorrelationsMsg.h"
#include "Msg/GeneralLinearModelMsg.h"
#include "Msg/MixedModelMsg.h"
#include "Msg/MixedRegressionMsg.h"
#include "Msg/MultivariateAnalysisMsg.h"
#include "Msg/QualityAnalysisMsg.h"
#include "Msg/RegressionMsg.h"
#include "Msg/Stat2SingleMenuItemsMsg.h"
#include "host/IBinReader.h"
#include "host/IDlgBase.h"
#include "host/IGlobal.h"
#include "host/IKernel.h"
#include "host/KalAssertDlg.h"

#include <iostream>
#include <new>

namespace {

constexpr int kNullGlobalAssertLine = 64;

template <class Service>
Service* LookUpModule(IGlobal* global, const wchar_t* name)
{
    IModuleRegistry* registry = global ? global->GetModuleRegistry() : nullptr;
    IModule* module = registry ? registry->GetModule(name) : nullptr;
    return dynamic_cast<Service*>(module);
}

} // namespace

CDlgStat2::CDlgStat2(IGlobal* pGlobal) : m_pGlobal(pGlobal)
{
    if (!pGlobal)
        CKalAssertDlg("Source/DlgStat2", kNullGlobalAssertLine).DoPrint();
    m_pDlgBase = CreateDlgBase(pGlobal);
    m_pKernel = LookUpModule<IKernel>(pGlobal, L"KalKernel");
    m_pData = LookUpModule<IData>(pGlobal, L"KalData");

    // A handler that cannot be allocated stays null; the others still come.
    m_pAnalysisofVarianceMsg = new (std::nothrow) CAnalysisofVarianceMsg(pGlobal);
    m_pCorrelationsMsg = new (std::nothrow) CCorrelationsMsg(pGlobal);
    m_pGeneralLinearModelMsg = new (std::nothrow) CGeneralLinearModelMsg(pGlobal);
    m_pMixedModelMsg = new (std::nothrow) CMixedModelMsg(pGlobal);
    m_pMixedRegressionMsg = new (std::nothrow) CMixedRegressionMsg(pGlobal);
    m_pMultivariateAnalysisMsg = new (std::nothrow) CMultivariateAnalysisMsg(pGlobal);
    m_pQualityAnalysisMsg = new (std::nothrow) CQualityAnalysisMsg(pGlobal);
    m_pRegressionMsg = new (std::nothrow) CRegressionMsg(pGlobal);
    m_pStat2SingleMenuItemsMsg = new (std::nothrow) CStat2SingleMenuItemsMsg(pGlobal);
}

CDlgStat2::~CDlgStat2()
{
    if (m_pDlgBase) {
        m_pDlgBase->Release();
        m_pDlgBase = nullptr;
    }
    // In creation order, ANOVA first.
    delete m_pAnalysisofVarianceMsg;
    delete m_pCorrelationsMsg;
    delete m_pGeneralLinearModelMsg;
    delete m_pMixedModelMsg;
    delete m_pMixedRegressionMsg;
    delete m_pMultivariateAnalysisMsg;
    delete m_pQualityAnalysisMsg;
    delete m_pRegressionMsg;
    delete m_pStat2SingleMenuItemsMsg;
    m_pAnalysisofVarianceMsg = nullptr;
    m_pCorrelationsMsg = nullptr;
    m_pGeneralLinearModelMsg = nullptr;
    m_pMixedModelMsg = nullptr;
    m_pMixedRegressionMsg = nullptr;
    m_pMultivariateAnalysisMsg = nullptr;
    m_pQualityAnalysisMsg = nullptr;
    m_pRegressionMsg = nullptr;
    m_pStat2SingleMenuItemsMsg = nullptr;
    // m_pGlobal, m_pKernel and m_pData belong to the host.
}

void CDlgStat2::Release()
{
    delete this;
}

void CDlgStat2::PrintModuleInfo()
{
    std::wcout << L"DlgStat2 Module" << std::endl;
}

bool CDlgStat2::ReleaseCountedRef(KalCountedRef* holder, int reason)
{
    // Reasons 2 and 3 leave the holder alone; reason 1 takes one extra
    // reference away. The asymmetry is the host's protocol and is kept.
    if (reason == 2 || reason == 3 || !holder)
        return false;
    if (reason == 1)
        --holder->m_nRefCount;
    if (--holder->m_nRefCount > 0)
        return false;
    if (holder->m_pObject)
        holder->m_pObject->Release();
    holder->m_pObject = nullptr;
    delete holder;
    return false;
}

IBinReader* CDlgStat2::GetResourceHandle()
{
    return KalUseRes::GetGlobalResourceHandle();
}
