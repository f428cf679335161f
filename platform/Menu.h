// CMenu: the items of a pop-up menu, with their enable states.
#pragma once

#include "platform/CString.h"
#include "platform/Types.h"

#include <vector>

struct CMenuItem {
    UINT id;
    CString caption;
    bool enabled = true;
};

class CMenu {
public:
    void AppendMenu(UINT id, const CString& caption) { m_items.push_back({id, caption, true}); }
    void EnableMenuItem(UINT id, bool enable)
    {
        for (auto& item : m_items)
            if (item.id == id)
                item.enabled = enable;
    }
    const std::vector<CMenuItem>& Items() const { return m_items; }
    bool IsEnabled(UINT id) const
    {
        for (const auto& item : m_items)
            if (item.id == id)
                return item.enabled;
        return false;
    }

private:
    std::vector<CMenuItem> m_items;
};
