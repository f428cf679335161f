// CRegressionMsg: the regression menu.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CRegressionMsg : public CMenuGroupMsg {
public:
    explicit CRegressionMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CRegressionMsg"; }
};
