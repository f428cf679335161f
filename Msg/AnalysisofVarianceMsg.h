// CAnalysisofVarianceMsg: the analysis-of-variance menu.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CAnalysisofVarianceMsg : public CMenuGroupMsg {
public:
    explicit CAnalysisofVarianceMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CAnalysisofVarianceMsg"; }
};
