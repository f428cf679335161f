// CStat2SingleMenuItemsMsg: the single menu items: missing values, survival, response surfaces.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CStat2SingleMenuItemsMsg : public CMenuGroupMsg {
public:
    explicit CStat2SingleMenuItemsMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CStat2SingleMenuItemsMsg"; }
};
