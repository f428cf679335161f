// IGlobal: the host's global services, handed to the module at creation.
// Every service a module may use is here; the reference host implements
// them all, tests use a small in-process fake.
#pragma once

#include "host/IData.h"
#include "host/IModule.h"
#include "platform/CString.h"
#include "platform/Types.h"

class CGUIBaseObj;
class CKVMenuBar;

// The application's main frame window.
class IMainFrame {
public:
    virtual CKVMenuBar* GetMenuBar() = 0;
    // The context a dialog for command `id` is owned by (may be null).
    virtual void* GetOwnerContext(UINT id) = 0;

protected:
    ~IMainFrame() = default;
};

class IGlobal {
public:
    // Modules of the process by name ("KalKernel", "KalData", ...).
    virtual IModuleRegistry* GetModuleRegistry() = 0;

    // Settings store: one settings object per command id, owned by the
    // store from registration on and kept for as long as the host runs.
    virtual CGUIBaseObj* GetSettings(UINT commandId) = 0;
    virtual void RegisterSettings(UINT commandId, CGUIBaseObj* settings) = 0;

    // Command runner: collects the lines of the settings registered under
    // the id (GetCommandInfoList) and runs them.
    virtual void RunCommand(UINT commandId, const CString& caption) = 0;

    // Permission query: may this command run now?
    virtual bool IsCommandAllowed(UINT commandId) = 0;

    // Message service: shows message `messageId` to the user.
    virtual void ReportMessage(UINT messageId, int flags) = 0;
    // The same for a message about one field of a dialog: `detail` names the
    // field and what it takes ("Confidence: a number from 0 to 1.") and
    // follows the message's text. A host that shows messages by id alone
    // may leave it out.
    virtual void ReportFieldMessage(UINT messageId, const CString& /*detail*/) { ReportMessage(messageId, 0); }

    // Display service: a dialog is about to open.
    virtual void OnDialogOpening(int reason) = 0;

    // State query: true while the host re-runs analyses from its output
    // (dialogs then keep their own captions and re-open from output nodes).
    virtual bool IsReplayMode() = 0;

    virtual IMainFrame* GetMainFrame() = 0;

    // The open data sheet (null when none) and the kind of data it holds.
    virtual IDataSheet* GetActiveDataSheet() = 0;
    virtual int GetDataTypeCode() = 0;

    // The module line the command runner ran last ("ANOVA", "QC", ...).
    virtual CString GetCurrentCommandModule() = 0;
    virtual int GetOutputLevel() = 0;

    // The two queries behind "may factors be moved": the restricted-mode
    // flag (false by default) and the edit level (1 by default).
    virtual bool IsRestrictedMode() = 0;
    virtual int GetEditLevel() = 0;

    // Command preferences.
    virtual bool IsWriteEveryOption() = 0;
    virtual char16_t GetDecimalSeparator() = 0;

    // Called by tab dialogs after OK: refresh the views (hint) and give the
    // main window its focus back.
    virtual void UpdateViews(int hint) = 0;
    virtual void RestoreFocus() = 0;

protected:
    ~IGlobal() = default;
};
