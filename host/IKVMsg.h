// IKVMsg: how the host sends menu commands to a module's menu-group
// handler, in slot order.
#pragma once

#include "platform/Types.h"

class IGrHitNodeInfo;

class IKVMsg {
public:
    virtual void OnKVCommand(UINT id) = 0;
    virtual void OnGrKVCommand(UINT id, IGrHitNodeInfo* node) = 0;
    // Re-opens the dialog of the current command id from an output node.
    virtual void OnGraphCommand(UINT id, IGrHitNodeInfo* node) = 0;
    virtual void OnKVAutoCommand() = 0;
    virtual void OnKVNotify(UINT code, LPARAM data) = 0;
    virtual void SetDID(UINT id) = 0;
    virtual UINT GetDID() = 0;
    virtual void SetParent(void* parent) = 0;

protected:
    ~IKVMsg() = default;
};
