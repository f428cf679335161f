// CGUIBaseDlg: the base of every dialog and tab page. It runs the cycle by
// which a dialog takes its values from its settings object (GetAll, data
// exchange) and gives them back (data exchange, SetAll), and owns the shared
// machinery: variable moves between a source list and target lists, drag
// and drop between them, the source list's context menu, tool tips, combo
// filling and reset.
//
// A dialog registers its lists once (SetSourceList, AddTargetList); every
// move, enable test, drag, drop, double click and menu entry works from
// that table.
#pragma once

#include "framework/DDXVDlg.h"
#include "framework/GUIBaseObj.h"
#include "framework/GUIListCtrl.h"
#include "platform/Cursor.h"

#include <array>
#include <string>
#include <vector>

class CGUITabCtrl;
class CMultiListInfo;

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
    virtual void UpdateDependentWindows();

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

    void SetSourceList(CGUIListCtrl* source) { m_pSourceList = source; }
    void AddTargetList(CGUIListCtrl* target, UINT addButton, UINT removeButton, int nMax = 0);

    void OnBegindrag(NMHDR* pNMHDR, LRESULT* pResult);
    bool IsDragging() const { return m_pDragList != nullptr; }
    CGUIListCtrl* GetDragList() const { return m_pDragList; }

    CComboBox* GetComboBoxWnd(UINT id) const;
    int GetComboCurSel(UINT id) const;
    BOOL IsCtrlEnabled(UINT id) const;
    void EnableCtrl(UINT id, BOOL enable);
    void ShowCtrl(UINT id, BOOL show);

    UINT GetDlgCaptionID() const { return m_nCaptionID; }
    void SetMenuCaption(const CString& caption);
    CString GetDlgCaption() const { return GetWindowText(); }
    // Set when the user confirmed: the analysis is to be run.
    bool IsRunFlagSet() const { return m_bRun; }

    // Assertion report naming this dialog's source.
    void ReportAssertion(int line) const;
    virtual const char* GetSourceFile() const { return "framework/GUIBaseDlg"; }

    // User input the window model routes here.
    void OnDragOver(CWnd* over) override;
    void OnDragRelease(CWnd* over) override;
    void OnContextMenu(CWnd* wnd) override;

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

protected:
    struct TargetList {
        CGUIListCtrl* list;
        UINT addButton;
        UINT removeButton;
        int nMax;
    };
    const TargetList* FindTarget(const CWnd* list) const;
    const TargetList* FindTargetByButton(UINT buttonId) const;
    CGUIListCtrl* GetSourceList() const { return m_pSourceList; }
    const std::vector<TargetList>& GetTargetLists() const { return m_targets; }
    // Runs the handler bound to a button, as a click would.
    void RunButtonHandler(UINT buttonId);
    void SetRunFlag(bool run) { m_bRun = run; }

    void OnDblclkListCtrl(NMHDR* pNMHDR, LRESULT* pResult);
    void OnSelchangeTab(NMHDR* pNMHDR, LRESULT* pResult);
    void OnInvalidated() override;
    virtual CGUITabCtrl* GetTabControl() { return nullptr; }

    DECLARE_MESSAGE_MAP()

private:
    CGUIListCtrl* m_pSourceList = nullptr;
    std::vector<TargetList> m_targets;
    CGUIListCtrl* m_pDragList = nullptr;
    UINT m_nCaptionID = 0;
    bool m_bRun = false;
};

// The reset button every page may carry.
inline constexpr UINT IDC_RESET = 14;
