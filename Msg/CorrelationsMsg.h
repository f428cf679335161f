// CCorrelationsMsg: the correlations menu.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CCorrelationsMsg : public CMenuGroupMsg {
public:
    explicit CCorrelationsMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CCorrelationsMsg"; }
};
