// CMixedModelMsg: the mixed-model menu (2070 to 2072 belong to the regression menu and are ignored here).
#pragma once

#include "Msg/MenuGroupMsg.h"

class CMixedModelMsg : public CMenuGroupMsg {
public:
    explicit CMixedModelMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CMixedModelMsg"; }
};
