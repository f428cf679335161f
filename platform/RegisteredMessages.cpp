#include "platform/RegisteredMessages.h"

#include <mutex>
#include <unordered_map>

UINT RegisterWindowMessage(const CString& name)
{
    // Libraries register their messages from static initialisers, possibly
    // before main; the lock keeps that safe whatever the load order.
    static std::mutex lock;
    static std::unordered_map<CString, UINT> ids;
    constexpr UINT kFirst = 0xC000;
    constexpr UINT kLast = 0xFFFF;
    if (name.IsEmpty())
        return 0;
    std::lock_guard guard(lock);
    if (const auto it = ids.find(name); it != ids.end())
        return it->second;
    const UINT id = kFirst + static_cast<UINT>(ids.size());
    if (id > kLast)
        return 0;
    ids.emplace(name, id);
    return id;
}
