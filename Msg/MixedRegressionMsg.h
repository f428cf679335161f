// CMixedRegressionMsg: the mixed-regression menu.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CMixedRegressionMsg : public CMenuGroupMsg {
public:
    explicit CMixedRegressionMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CMixedRegressionMsg"; }
};
