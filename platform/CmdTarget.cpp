#include "platform/CmdTarget.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nMessage, int nCode, UINT nID, NMHDR* pNMHDR, LRESULT* pResult, CCmdUI* pCmdUI)
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry) {
            if (entry->nMessage == nMessage && entry->nCode == nCode && nID >= entry->nID && nID <= entry->nLastID) {
                entry->pfn(this, AFX_NOTIFICATION{nID, pNMHDR, pResult, pCmdUI});
                return TRUE;
            }
        }
    }
    return FALSE;
}
