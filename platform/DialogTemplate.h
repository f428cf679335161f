// Dialog templates: the controls a dialog is built from, as a resource
// describes them. Geometry is in dialog units (a quarter of the average
// character width, an eighth of the character height), so a view scales it
// with its font.
#pragma once

#include "platform/CString.h"
#include "platform/Types.h"

#include <optional>
#include <vector>

enum class ControlKind {
    PushButton,
    CheckBox,
    RadioButton,
    GroupBox,
    Static,
    Edit,
    ComboBox,
    List,
    Tab,
    Grid,
    FileEdit,
};

// Style bits a view honours.
enum : DWORD {
    WS_GROUP = 0x0001, // first control of a group (radio groups, tab order)
    WS_TABSTOP = 0x0002,
    WS_DISABLED = 0x0004,
    WS_HIDDEN = 0x0008,
    BS_DEFPUSHBUTTON = 0x0010,
    LVS_SINGLESEL = 0x0020,
    ES_READONLY = 0x0040,
    SS_RIGHT = 0x0080,
};

struct ControlTemplate {
    UINT id = 0;
    ControlKind kind = ControlKind::Static;
    CString caption;
    int x = 0, y = 0, cx = 0, cy = 0;
    DWORD style = WS_TABSTOP;
    // Column headers of a grid.
    std::vector<CString> columns;
    // The tool tip a dialog gives the control unless it sets its own.
    CString tip;
};

struct DialogTemplate {
    UINT id = 0;
    CString caption;
    int cx = 0, cy = 0;
    std::vector<ControlTemplate> controls;

    const ControlTemplate* Find(UINT controlId) const
    {
        for (const auto& control : controls)
            if (control.id == controlId)
                return &control;
        return nullptr;
    }
};

const char* ControlKindName(ControlKind kind);
std::optional<ControlKind> ControlKindFromName(std::string_view name);
