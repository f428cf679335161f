// IBinReader: the host's resource reader. Texts, combo lists, radio groups,
// dialog templates and menus live in the host's resources; modules keep
// and pass their ids only. An unknown id yields an empty text, an empty
// list or a null template, never a failure.
#pragma once

#include "platform/CString.h"
#include "platform/DialogTemplate.h"
#include "platform/Types.h"

#include <memory>
#include <vector>

struct KalComboEntry {
    CString text;
    UINT itemId; // resource string id of the entry, 0 where none is used
};

class IBinReader {
public:
    virtual CString GetString(UINT id) = 0;
    // The entries of combo `comboId` as filled for dialog `dialogId`; a list
    // shared by every dialog is found under dialog 0 as well.
    virtual std::vector<KalComboEntry> GetComboList(UINT comboId, UINT dialogId) = 0;
    // Button ids of the radio group whose first button is `groupId`.
    virtual std::vector<UINT> GetRadioGroup(UINT groupId) = 0;
    virtual std::shared_ptr<const DialogTemplate> GetDialogTemplate(UINT id) = 0;

protected:
    ~IBinReader() = default;
};

namespace KalUseRes {

// The resource reader the host registered for the whole process; null
// before the host has set one.
IBinReader* GetGlobalResourceHandle();
void SetGlobalResourceHandle(IBinReader* reader);

} // namespace KalUseRes
