// CKVMsg: the base of a module's menu-group handlers. The host sends a menu
// command to the handler of its group; the base records the id, the
// handler's override then runs the launch routine for it.
#pragma once

#include "host/IKVMsg.h"
#include "platform/CmdTarget.h"

class IGlobal;

class CKVMsg : public CCmdTarget, public IKVMsg {
    DECLARE_DYNAMIC(CKVMsg)
public:
    explicit CKVMsg(IGlobal* global) : m_pGlobal(global) {}
    ~CKVMsg() override = default;
    CKVMsg(const CKVMsg&) = delete;
    CKVMsg& operator=(const CKVMsg&) = delete;

    void OnKVCommand(UINT id) override { m_nDID = id; }
    void OnGrKVCommand(UINT id, IGrHitNodeInfo* node) override;
    void OnGraphCommand(UINT, IGrHitNodeInfo*) override {}
    void OnKVAutoCommand() override {}
    void OnKVNotify(UINT, LPARAM) override {}
    void SetDID(UINT id) override { m_nDID = id; }
    UINT GetDID() override { return m_nDID; }
    void SetParent(void* parent) override { m_pParent = parent; }

    IGlobal* GetGlobal() const { return m_pGlobal; }
    void* GetParent() const { return m_pParent; }

private:
    IGlobal* m_pGlobal;
    void* m_pParent = nullptr;
    UINT m_nDID = 0;
};
