// CKVMenuBar: the main frame's menu bar as the module sees it.
#pragma once

#include "platform/Collections.h"
#include "platform/Types.h"

class CKVMenuBar {
public:
    // Fills `chain` with the menu texts that lead to command `id`, outermost
    // first; false when no menu item has that id.
    virtual bool GetIDTextChain(UINT id, CStringArray& chain) = 0;

protected:
    ~CKVMenuBar() = default;
};
