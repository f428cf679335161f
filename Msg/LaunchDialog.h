// The launch routine of a menu command: one template that every row of a
// handler's table instantiates with its dialog and settings classes.
//
//  1. the host may refuse the command now (message 100190495);
//  2-4. the dialog is made and given its owner context; the settings object
//     the host keeps under the command id is taken, or created and
//     registered there;
//  5-7. the settings are wired to the dialog's pages, captions are set, and
//     outside replay the menu path becomes the caption;
//  8-9. defaults are reassigned, source lists filled, the dialog id set, the
//     host told that a dialog opens;
//  10-11. the dialog runs; on OK the host runs the command id, whose lines it
//     collects from the registered settings.
//
// ConfirmDialog is the same dialog over a copy of the stored settings,
// confirmed at once without being shown and without refreshing its lists
// from the data sheet: the lines an immediate OK writes for what is stored.
#pragma once

#include "Msg/MenuGroupMsg.h"
#include "framework/GUIBaseDlg.h"
#include "host/IGlobal.h"
#include "host/KVMenuBar.h"
#include "platform/HeadlessDriver.h"

// The menu path as one caption: "Analysis > Analysis of Variance > Estimate
// Model", mnemonics and trailing dots dropped.
CString JoinMenuCaption(const CStringArray& chain);

// Steps 5-7: the dialog edits `settings` and carries the row's captions.
template <class TDlg, class TData>
void WireDialog(IGlobal* global, UINT id, const MenuCommandRow& row, TDlg& dialog, TData& settings)
{
    settings.SetParent(nullptr);
    dialog.SetData(&settings);
    dialog.SetCaptionIDs(row.captions);
    IMainFrame* frame = global->GetMainFrame();
    CStringArray chain;
    if (!global->IsReplayMode() && frame && frame->GetMenuBar() && frame->GetMenuBar()->GetIDTextChain(id, chain) &&
        !chain.IsEmpty())
        dialog.SetMenuCaption(JoinMenuCaption(chain));
}

template <class TDlg, class TData>
void LaunchDialog(IGlobal* global, UINT id, void*, const MenuCommandRow& row, IGrHitNodeInfo* node)
{
    if (!global)
        return;
    if (!global->IsCommandAllowed(id)) {
        global->ReportMessage(kMsgCommandRefused, 0);
        return;
    }
    TDlg dialog(nullptr);
    IMainFrame* frame = global->GetMainFrame();
    dialog.SetOwnerContext(frame ? frame->GetOwnerContext(id) : nullptr);

    auto* settings = dynamic_cast<TData*>(global->GetSettings(id));
    if (!settings) {
        settings = new TData;
        global->RegisterSettings(id, settings); // the store owns it from here on
    }
    WireDialog(global, id, row, dialog, *settings);
    if (node)
        settings->SetAll(node);

    settings->ReassignDefaultValue();
    settings->FillListSource();
    settings->SetstrDialog(id);
    global->OnDialogOpening(0);

    if (dialog.DoModal() == IDOK && dialog.IsRunFlagSet())
        global->RunCommand(id, global->IsReplayMode() ? dialog.GetDlgCaption() : CString());
}

template <class TDlg, class TData>
bool ConfirmDialog(IGlobal* global, UINT id, const MenuCommandRow& row, const CGUIBaseObj* stored,
                   CLIST<CCmdInfo>& lines)
{
    const auto* storedData = dynamic_cast<const TData*>(stored);
    if (!global || (stored && !storedData))
        return false;
    TData settings = storedData ? *storedData : TData();
    TDlg dialog(nullptr);
    WireDialog(global, id, row, dialog, settings);
    settings.ReassignDefaultValue();
    settings.SetstrDialog(id);

    // The caller's driver comes back however the run ends: a page refuses
    // stored values it cannot show by throwing.
    CConfirmDriver confirm;
    struct DriverRestore {
        CDialogDriver* previous;
        ~DriverRestore() { AfxSetDialogDriver(previous); }
    } restore{AfxSetDialogDriver(&confirm)};
    const INT_PTR result = dialog.DoModal();
    if (result != IDOK)
        return false;
    settings.GetCommandInfoList(lines);
    return true;
}
