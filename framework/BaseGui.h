// CBaseGui: source variables of the open data sheet.
#pragma once

#include "framework/GUIArray.h"
#include "host/IData.h"

class CBaseGui {
public:
    // Fills `out` with the variables of the host's active data sheet that
    // `which` selects (all, numeric only, string only). `flag` is reserved
    // and 0. Leaves `out` empty when no valid sheet is open.
    static void GetSourceVariable(CGUIArray<CGUIDataVariable>* out, NmsEnum::ADD_VARIABLE_TYPE which, int flag);
};
