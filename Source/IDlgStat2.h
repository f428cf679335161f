// IDlgStat2: the module object's interface, IModule's operations followed
// by the nine menu-group handler getters, in slot order.
#pragma once

#include "host/IModule.h"

class CAnalysisofVarianceMsg;
class CCorrelationsMsg;
class CGeneralLinearModelMsg;
class CMixedModelMsg;
class CMixedRegressionMsg;
class CMultivariateAnalysisMsg;
class CQualityAnalysisMsg;
class CRegressionMsg;
class CStat2SingleMenuItemsMsg;

class IDlgStat2 : public IModule {
public:
    virtual CAnalysisofVarianceMsg* GetAnalysisofVarianceMsg() = 0;
    virtual CCorrelationsMsg* GetCorrelationsMsg() = 0;
    virtual CGeneralLinearModelMsg* GetGeneralLinearModelMsg() = 0;
    virtual CMixedModelMsg* GetMixedModelMsg() = 0;
    virtual CMixedRegressionMsg* GetMixedRegressionMsg() = 0;
    virtual CMultivariateAnalysisMsg* GetMultivariateAnalysisMsg() = 0;
    virtual CQualityAnalysisMsg* GetQualityAnalysisMsg() = 0;
    virtual CRegressionMsg* GetRegressionMsg() = 0;
    virtual CStat2SingleMenuItemsMsg* GetStat2SingleMenuItemsMsg() = 0;
    virtual ~IDlgStat2() = default;
};

// The module's one exported entry.
extern "C" IModule* GetModuleFactory(IGlobal* pGlobal);
using GetModuleFactoryFn = IModule* (*)(IGlobal*);
