// CMultivariateAnalysisMsg: the multivariate-analysis menu.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CMultivariateAnalysisMsg : public CMenuGroupMsg {
public:
    explicit CMultivariateAnalysisMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CMultivariateAnalysisMsg"; }
};
