// CGeneralLinearModelMsg: the general-linear-model menu.
#pragma once

#include "Msg/MenuGroupMsg.h"

class CGeneralLinearModelMsg : public CMenuGroupMsg {
public:
    explicit CGeneralLinearModelMsg(IGlobal* pGlobal);
    const char* GetHandlerName() const override { return "CGeneralLinearModelMsg"; }
};
