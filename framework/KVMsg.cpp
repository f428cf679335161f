#include "framework/KVMsg.h"

IMPLEMENT_DYNAMIC(CKVMsg, CCmdTarget)

void CKVMsg::OnGrKVCommand(UINT id, IGrHitNodeInfo* node)
{
    SetDID(id);
    OnGraphCommand(id, node);
}
