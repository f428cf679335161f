// CQualityAnalysisMsg: the quality-analysis menu (2044 is not a command).
#pragma once

#include "Msg/MenuGroupMsg.h"

class CQualityAnalysisMsg : public CMenuGroupMsg {
public:
    explicit CQualityAnalysisMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CQualityAnalysisMsg"; }
};
