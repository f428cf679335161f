// CMenuGroupMsg: what the nine menu-group handlers share. A handler is its
// table of menu commands; dispatch compares the recorded command id with
// the rows and runs the row's launch routine. Ids the table does not list
// (the gaps inside a handler's range included) do nothing.
#pragma once

#include "framework/CmdInfo.h"
#include "framework/GUIArray.h"
#include "framework/KVMsg.h"
#include "platform/CString.h"

#include <array>
#include <span>
#include <string>

class CGUIBaseObj;
class IGlobal;
class IGrHitNodeInfo;
struct MenuCommandRow;

// Opens the analysis of one row: `node` is the output node to re-open it
// from, or null for a menu command.
using LaunchRoutine = void (*)(IGlobal* global, UINT id, void* parent, const MenuCommandRow& row, IGrHitNodeInfo* node);
// The lines an immediate OK in the row's dialog writes for the settings
// `stored` (null: the defaults); false when the dialog refuses the OK or
// `stored` is not of the row's settings class.
using ConfirmRoutine = bool (*)(IGlobal* global, UINT id, const MenuCommandRow& row, const CGUIBaseObj* stored,
                                CLIST<CCmdInfo>& lines);

struct MenuCommandRow {
    UINT id;
    const char* dialogClass;
    const char* settingsClass;
    // Caption ids in the order the launch routine passes them (0 ends).
    std::array<UINT, 4> captions;
    // Null while the analysis is not part of this module: the command is
    // recognised and routed, and reports that it is not available.
    LaunchRoutine launch;
    ConfirmRoutine confirm;

    bool IsAvailable() const { return launch != nullptr; }
};

// Each row is one braced initialiser, on one line as the tables read.
// clang-format off
// A row whose dialog and settings classes are part of the module.
#define KAL_MENU_ROW(id, Dlg, Data, ...) \
    {id, #Dlg, #Data, {__VA_ARGS__}, &LaunchDialog<Dlg, Data>, &ConfirmDialog<Dlg, Data>}
// A row of the menu table whose analysis this module does not hold yet.
#define KAL_MENU_ROW_UNAVAILABLE(id, Dlg, Data, ...) {id, #Dlg, #Data, {__VA_ARGS__}, nullptr, nullptr}
// clang-format on

class CMenuGroupMsg : public CKVMsg {
public:
    // `sourceFile` names the handler in assertion reports ("Msg/...").
    CMenuGroupMsg(IGlobal* global, const char* sourceFile, std::span<const MenuCommandRow> rows);

    void OnKVCommand(UINT id) override;
    void OnGraphCommand(UINT id, IGrHitNodeInfo* node) override;

    std::span<const MenuCommandRow> Rows() const { return m_rows; }
    const MenuCommandRow* FindRow(UINT id) const;
    virtual const char* GetHandlerName() const = 0;

    // Kept for the host's use; dispatch does not read them.
    CString m_strMenuText;
    CString m_strStatusText;
    CGUIArray<CGUIDataVariable> m_arrVariables;

private:
    void Run(UINT id, IGrHitNodeInfo* node);

    std::span<const MenuCommandRow> m_rows;
};

// Reports message 100190500 ("not available in this version") through the
// host; used for rows whose analysis the module does not hold.
void ReportUnavailable(IGlobal* global);

inline constexpr UINT kMsgCommandRefused = 100190495;
inline constexpr UINT kMsgNotAvailable = 100190500;
