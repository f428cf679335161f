// CDialog: a window built from a dialog template. DoModal creates the
// controls, runs OnInitDialog and hands the dialog to the active driver,
// which runs it until EndDialog. Create makes it a child (a tab page).
#pragma once

#include "platform/Cursor.h"
#include "platform/Menu.h"
#include "platform/Wnd.h"

#include <functional>
#include <memory>

class CDataExchange;

class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    UINT GetTemplateID() const { return m_nTemplateID; }
    const DialogTemplate* GetDialogTemplate() const { return m_template.get(); }

    // -1 when the template or the driver is missing.
    virtual INT_PTR DoModal();
    // Creates the dialog as a child window of `parent`.
    BOOL CreateChild(CWnd* parent);
    void DestroyWindow();

    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    void EndDialog(int result);
    bool IsModal() const { return m_bModal; }
    // A modal dialog that has not ended yet.
    bool IsRunning() const { return m_bModal && !m_bEnded; }
    int GetModalResult() const { return m_nResult; }

    // Runs the data exchange; a refused entry leaves the focus on its
    // control and FALSE.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    // The control last given the focus in this dialog or its pages (null
    // for none).
    CWnd* GetFocusCtrl() const { return m_pFocus; }
    virtual void DoDataExchange(CDataExchange* pDX);

    void CheckDlgButton(UINT id, UINT check);
    UINT IsDlgButtonChecked(UINT id) const;
    void CheckRadioButton(UINT firstId, UINT lastId, UINT checkId);
    int GetCheckedRadioButton(UINT firstId, UINT lastId) const;
    void SetDlgItemText(UINT id, const CString& text);
    CString GetDlgItemText(UINT id) const;

    // The radio buttons of the group that `radio` belongs to, in template
    // order: a group starts at a radio button with WS_GROUP (or after any
    // other control) and runs until the next control that is not a radio
    // button or starts a group of its own.
    std::vector<CButton*> GetRadioGroup(const CWnd* radio) const;

    // The static text, check box or radio button whose caption names
    // `control` (null when none does): a static text ending in ':' just
    // before it in template order (group boxes aside), else, for a control
    // without a caption of its own, the nearest captioned control to its
    // left on the same row, else one just above it. Readers, messages and
    // mnemonics all name a field by it.
    const CWnd* GetLabelOf(const CWnd& control) const;
    // That label's caption as a reader says it: no mnemonic marks, no
    // trailing ':'; empty when the control has no label.
    CString GetLabelText(const CWnd& control) const;

    // The help context the dialog's Help button (IDHELP) and the F1 key
    // show: 0 for none, else an id the help service knows (the analysis's
    // menu command).
    void SetHelpContext(UINT context) { m_nHelpContext = context; }
    virtual UINT GetHelpContext();
    // The Help button: asks the help service for the dialog's help context.
    virtual void OnHelp();

    // User input routed to the dialog (see CUserInput).
    virtual void OnDragOver(CWnd* over);
    virtual void OnDragRelease(CWnd* over);
    virtual void OnContextMenu(CWnd* wnd);

    BOOL OnCmdMsg(UINT nMessage, int nCode, UINT nID, NMHDR* pNMHDR = nullptr, LRESULT* pResult = nullptr,
                  CCmdUI* pCmdUI = nullptr) override;

protected:
    // Builds the controls from the template; false (with an assertion
    // report) when the resources have no such template.
    bool CreateControls();

private:
    friend class CWnd; // SetFocus records itself here
    CWnd* m_pFocus = nullptr;
    UINT m_nTemplateID;
    std::shared_ptr<const DialogTemplate> m_template;
    std::vector<std::unique_ptr<CWnd>> m_owned;
    bool m_bModal = false;
    bool m_bEnded = false;
    int m_nResult = 0;
    UINT m_nHelpContext = 0;
};

// Pop-up menus and modal runs are the driver's.
class CDialogDriver {
public:
    virtual ~CDialogDriver() = default;
    // Runs a created, initialised modal dialog until it ends; returns its
    // result (IDCANCEL when the driver gives up with the dialog open).
    virtual INT_PTR RunModal(CDialog& dialog) = 0;
    // Shows `menu` for `owner`; returns the chosen enabled command or 0.
    virtual UINT TrackPopupMenu(CWnd& owner, const CMenu& menu) = 0;
};

CDialogDriver* AfxGetDialogDriver();
// Installs a driver; returns the previous one.
CDialogDriver* AfxSetDialogDriver(CDialogDriver* driver);

namespace kal {

using DialogTemplateSource = std::function<std::shared_ptr<const DialogTemplate>(UINT)>;
// Where dialogs find their templates (installed by the framework).
void SetDialogTemplateSource(DialogTemplateSource source);

// `detail` says what the message is about (a field and what it takes), or
// is empty.
using MessageBoxSink = std::function<void(UINT messageId, const CString& detail)>;
// Where AfxMessageBox reports go (installed by the framework).
void SetMessageBoxSink(MessageBoxSink sink);

using HelpSink = std::function<void(UINT context)>;
// The help service behind AfxWinHelp (installed by the host); returns the
// previous one.
HelpSink SetHelpSink(HelpSink sink);

} // namespace kal

// Shows message `promptId` to the user, followed by `detail` when there is one.
void AfxMessageBox(UINT promptId, const CString& detail = {});
// Shows the help of `context`; without a help service it does nothing.
void AfxWinHelp(UINT context);
