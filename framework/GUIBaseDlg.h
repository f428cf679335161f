// CGUIBaseDlg: the base of every dialog and tab page. It runs the cycle by
// which a dialog takes its values from its settings object (GetAll, data
// exchange) and gives them back (data exchange, SetAll), and owns the shared
// machinery: variable moves between a source list and target lists, drag
// and drop between them, the source list's context menu, tool tips, combo
// filling and reset.
//
// A page declares its lists once as data: the source list and one CRoleList
// row per target list. The buttons, drags, double clicks, the context menu
// and the buttons' enable rule all work from those rows; the page keeps only
// the rules that are its own.
#pragma once

#include "framework/DDXVDlg.h"
#include "framework/FileEditCtrl.h"
#include "framework/GUIBaseObj.h"
#include "framework/GUIListCtrl.h"
#include "platform/Cursor.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CGUITabCtrl;
class CGUITabDlg;
class CMultiListInfo;

// One target list of a page: its buttons, its context-menu entry and the
// conditions of its moves. Every move in or out runs afterMove (if any) and
// then the page's enable rules.
struct CRoleList {
    UINT list = 0;
    UINT add = 0;
    UINT remove = 0;
    // Its entry in the source list's context menu (0: none), captioned with
    // the text of the control menuLabel (the list's label).
    UINT menuCommand = 0;
    UINT menuLabel = 0;
    // Whether selected string variables may be added now (null: yes); the
    // buttons, drags and the menu all apply it (but see
    // TypeRuleAppliesToDragsAndMenu). Drags and the menu test besides only
    // movability and that the list is enabled.
    std::function<bool()> acceptsStrings = {};
    // Further conditions of both buttons, and of the remove button alone
    // (null: none).
    std::function<bool()> enabled = {};
    std::function<bool()> removeEnabled = {};
    std::function<void()> afterMove = {};
    // At most this many variables (0: no limit).
    int maxItems = 0;
};

// What the data exchange of one field needs to know (see kal::Field).
struct CFieldExchange {
    UINT control = 0;
    unsigned flags = 0;
    double min = 0;
    double max = 0;
    UINT rangeMessage = 0; // 0: any value
    UINT requiredBy = 0;   // a check box that makes the text necessary
};

namespace kal {

// A value of a settings object that its page cannot show: a radio index
// past its group, a combo entry past its list, a check box that is neither
// 0 nor 1, a value whose state is neither 0 nor 1, a variable of no known
// type.
// Settings handed to a page come from an earlier OK of the page, so such a
// value can only come from a damaged or forged record, which is not used.
class CFieldValueException : public CException {
public:
    explicit CFieldValueException(std::string what) : m_what(std::move(what)) {}
    const char* what() const noexcept override { return m_what.c_str(); }

private:
    std::string m_what;
};

} // namespace kal

// Messages of the text checks every page shares.
inline constexpr UINT kMsgTextRequired = 2015;
inline constexpr UINT kMsgControlCharacter = 2016;
// The tip of an Add button that a selected string variable keeps grey; %1
// stands for the target list's label.
inline constexpr UINT kTipNoStringVariables = 2267;

class CGUIBaseDlg : public CDDXVDlg {
    DECLARE_DYNAMIC(CGUIBaseDlg)
public:
    CGUIBaseDlg(UINT templateId, CWnd* parent);

    // --- Virtual operations, in slot order ---------------------------------
    virtual CWnd* GetParentDlgWindow();
    virtual BOOL IsInteractiveGr();
    virtual void ChangeColor(CWnd* wnd, DWORD colour);
    virtual BOOL Create(CWnd* parent);

    virtual void GetData(CGUIBaseObj*& data);
    virtual void SetData(CGUIBaseObj* data);

    virtual void CreateMenu();
    virtual void SetListCtrlDisplayType();
    virtual void InitializeListCtrl();
    virtual CString GetEditDelim();
    virtual BOOL IsZAxisEnabled();
    virtual void SetAllInitDialogLike();
    virtual BOOL PreTranslateMessageEx(void* msg);

    // Settings -> members / members -> settings, and the same with defaults.
    virtual int GetAll();
    virtual int SetAll();
    virtual int GetAllDefault();
    virtual int SetAllDefault();

    virtual void EnableWindowObject(int enable);
    // The dialog's data exchange; 1 when it succeeded.
    virtual int KVUpdateData(int bSaveAndValidate);
    virtual void EnableWindowSetOne(int enable);
    virtual void ShowChildWindows(long show);
    virtual void SetInitialDlgAndObj(long flags);
    // The enable rules; the base's runs the role-list buttons, so a page
    // that has rules of its own calls it first.
    virtual void UpdateDependentWindows();

    // The source list's context menu: a row's entry moves to its list; an
    // entry is enabled while that move is possible.
    virtual BOOL OnAddTarget(UINT commandId);
    virtual BOOL OnUpdateAddTarget(CCmdUI* pCmdUI);
    virtual void OnSetDefault(CMultiListInfo* info, CString& text);
    virtual void OnUpdateComboChange(int index);
    virtual BOOL IsBootStrapWindowEnabled();
    // OK of a page: exchange and validate, then SetAll; 0 when refused.
    virtual int OKLike();
    virtual int CancelLike();
    // Opening of a page: GetAll, exchange, enable rules.
    virtual int InitDialogLike();

    virtual void AddBitmapButton();
    virtual void AddToolTip(UINT id, const CString& text, int bActivate);
    virtual void AddToolTip(CWnd* control, const CString& text, int bActivate);
    virtual void AddToolTips();
    virtual void UpdateToolTipText(UINT id, const CString& text, int bActivate);

    virtual void SendCloseMessage(long code);
    virtual void SendApplyMessage(long code);
    virtual void UpdateDataPart(long part, int bSaveAndValidate);
    virtual void AdjustWindowPositionForTabDlg(CTabCtrl* tabs);
    // The caption: also the owner id the settings of this page carry.
    virtual void SetDlgCaptionID(UINT captionId);
    virtual void OnItemchangedListCtrl(NMHDR* pNMHDR, LRESULT* pResult);
    // Whether the page is in use (tab dialogs enable pages by it and give
    // the answer to the page's settings as window state at OK).
    virtual BOOL IsWindowEnabled();
    // Why the page itself is out of use now (its tab is greyed with this
    // tip), or an empty text; a tab dialog may give reasons of its own.
    virtual CString GetOutOfUseReason() { return {}; }
    virtual CStringArray GetBitmapList(int first, int count);
    virtual CStringArray GetStringList(int first, int count);
    virtual void OnInPlaceEditDestroyed(CWnd* edit, int row, int column, CString text);

    virtual void MoveSourceListToTargetListOnDblClk();
    virtual void MoveSourceListToTargetEditOnDblClk();
    virtual void MoveTargetListOnDblClk();
    virtual void TempHelper();
    virtual void MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor);
    virtual void LButtonUpListCtrlHelper(const CWnd* over);
    virtual void ListCtrlElementRemovalHelper(CGUIListCtrl* list);
    virtual void OnReset();
    virtual void ToolbarButtonCommand(UINT id);

    // Captions the launch routine passes: the first is this dialog's.
    virtual void SetCaptionIDs(const std::array<UINT, 4>& captionIds);

    // --- Services ----------------------------------------------------------
    // Moves the selection of `from` to `to`. Direction 0 adds (source to
    // target: copies, a variable at most once when bUnique, at most nMax
    // in `to` when nMax > 0); 1 removes from the target list `from`.
    // nFlags 1: select the moved variables where they arrive.
    static BOOL MoveSourceToTarget(CGUIListCtrl* from, CGUIListCtrl* to, int direction, int bUnique, int nMax,
                                   int nFlags);
    // Whether the move from `from` to `to` is possible now; `buttonId` names
    // the move in the dialog's table (its limit), -1 for none.
    BOOL EnableSourceToTarget(CGUIListCtrl* from, CGUIListCtrl* to, int buttonId) const;

    // The page's variable lists, declared once in its constructor.
    void SetSourceList(UINT listId);
    void AddRoleList(CRoleList row);
    // The list control `listId` of this page (made on first use).
    CGUIListCtrl& ListCtrl(UINT listId);
    CGUIListCtrl* GetSourceList() const { return m_pSourceList; }
    // Runs the move of a row as its add or remove button does.
    void MoveRoleList(const CRoleList& row, bool add);

    void OnBegindrag(NMHDR* pNMHDR, LRESULT* pResult);
    bool IsDragging() const { return m_pDragList != nullptr; }
    CGUIListCtrl* GetDragList() const { return m_pDragList; }

    // The tab dialog this page sits in, or null.
    CGUITabDlg* GetTabDlg() const;
    // A page that changed something its siblings depend on tells its tab
    // dialog, which runs their enable rules again.
    void NotifyTab();

    CComboBox* GetComboBoxWnd(UINT id) const;
    int GetComboCurSel(UINT id) const;
    BOOL IsCtrlEnabled(UINT id) const;
    // Whether the user can reach the control: it and every window above it
    // (its page, the tab dialog) are enabled. Entries are checked only then.
    bool IsCtrlInUse(UINT id) const;
    void EnableCtrl(UINT id, BOOL enable);
    void ShowCtrl(UINT id, BOOL show);

    UINT GetDlgCaptionID() const { return m_nCaptionID; }
    void SetMenuCaption(const CString& caption);
    CString GetDlgCaption() const { return GetWindowText(); }
    // Set when the user confirmed: the analysis is to be run.
    bool IsRunFlagSet() const { return m_bRun; }
    // The owner context the host gave the dialog (launch step 3).
    void SetOwnerContext(void* context) { m_pOwnerContext = context; }
    void* GetOwnerContext() const { return m_pOwnerContext; }

    // Assertion report naming this dialog's source.
    void ReportAssertion(int line) const;
    virtual const char* GetSourceFile() const { return "framework/GUIBaseDlg"; }

    // The help context: the one set, else the menu command whose settings
    // the dialog edits, so that Help opens the section of that analysis.
    UINT GetHelpContext() override;

    // User input the window model routes here.
    void OnDragOver(CWnd* over) override;
    void OnDragRelease(CWnd* over) override;
    void OnContextMenu(CWnd* wnd) override;

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    BOOL OnCmdMsg(UINT nMessage, int nCode, UINT nID, NMHDR* pNMHDR = nullptr, LRESULT* pResult = nullptr,
                  CCmdUI* pCmdUI = nullptr) override;

protected:
    const CRoleList* FindRoleList(const CWnd* list) const;
    const CRoleList* FindRoleListByButton(UINT buttonId) const;
    const std::vector<CRoleList>& GetRoleLists() const { return m_roleLists; }
    // The role-list rule of the buttons: movable, the list not busy, the
    // selection's types accepted, the row's own conditions.
    bool CanAdd(const CRoleList& row) const;
    // The type rule of a row: no string variable in the source's selection
    // unless the row accepts strings now. Buttons, drags and the menu share it.
    bool AcceptsSelectedTypes(const CRoleList& row) const;
    // Whether drags and the menu apply the type rule too; a page whose
    // buttons alone refuse strings answers false.
    virtual bool TypeRuleAppliesToDragsAndMenu() const { return true; }
    // Whether a drag from the source list or the source list's menu may add
    // to the row's list now: the list is enabled and the move possible.
    bool AcceptsDrop(const CRoleList& row);
    bool CanRemove(const CRoleList& row) const;
    // An Add button kept grey only by a selected string variable says so in
    // its tip; else it shows the tip it had.
    void ExplainStringsRefused(const CRoleList& row);
    // Runs the handler bound to a button, as a click would.
    void RunButtonHandler(UINT buttonId);
    void SetRunFlag(bool run) { m_bRun = run; }
    // Called when the settings object changes (a tab dialog hands its pages
    // their parts here).
    virtual void OnDataSet() {}

    // Data exchange of one field by the kind of its control: check boxes,
    // radio groups and combo boxes hold an index, edits a number or a text,
    // file edits a file name, lists their variables. Range checks apply
    // while the control is enabled; no text may hold a control character,
    // and a text a checked box requires may not be empty.
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, int& value);
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CString& value);
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<int>& value);
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<unsigned int>& value);
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<double>& value);
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIDataWnd<int>& value);
    void ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIArray<CGUIDataVariable>& value);
    // Refuses, with kal::CFieldValueException, a value the field's control
    // cannot show; fields whose control this page lacks are not judged.
    void CheckField(const CFieldExchange& field, int value) const;
    void CheckField(const CFieldExchange& field, const CGUIData<int>& value) const;
    void CheckField(const CFieldExchange& field, const CGUIData<unsigned int>& value) const;
    void CheckField(const CFieldExchange& field, const CGUIData<double>& value) const;
    void CheckField(const CFieldExchange& field, const CGUIDataWnd<int>& value) const;
    void CheckField(const CFieldExchange& field, const CGUIArray<CGUIDataVariable>& value) const;
    // The file edit control `id` of this page (made on first use).
    CFileEditCtrl& FileEditCtrl(UINT id);

    void OnDblclkListCtrl(NMHDR* pNMHDR, LRESULT* pResult);
    void OnSelchangeTab(NMHDR* pNMHDR, LRESULT* pResult);
    void OnInvalidated() override;
    virtual CGUITabCtrl* GetTabControl() { return nullptr; }

    DECLARE_MESSAGE_MAP()

private:
    void CreateListCtrlMenu();
    template <class T>
    void ExchangeNumberField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<T>& value, UINT parseMessage);

    std::map<UINT, std::unique_ptr<CGUIListCtrl>> m_listCtrls;
    std::map<UINT, std::unique_ptr<CFileEditCtrl>> m_fileEditCtrls;
    CGUIListCtrl* m_pSourceList = nullptr;
    std::vector<CRoleList> m_roleLists;
    // The tips of Add buttons while they tell why strings are refused.
    std::map<UINT, CString> m_usualTips;
    CGUIListCtrl* m_pDragList = nullptr;
    // The target list being double-clicked, while its notice runs.
    const CWnd* m_pDblClkList = nullptr;
    UINT m_nCaptionID = 0;
    bool m_bRun = false;
    void* m_pOwnerContext = nullptr;
};

// The reset button every page may carry.
inline constexpr UINT IDC_RESET = 14;
