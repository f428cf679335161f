#include "framework/GUIBaseDlg.h"

#include "framework/GUITabCtrl.h"
#include "host/KalAssertDlg.h"

#include <unordered_set>

IMPLEMENT_DYNAMIC(CGUIBaseDlg, CDDXVDlg)

BEGIN_MESSAGE_MAP(CGUIBaseDlg, CDDXVDlg)
    ON_NOTIFY_RANGE(LVN_ITEMCHANGED, 0, 0xFFFFFFFF, &CGUIBaseDlg::OnItemchangedListCtrl)
    ON_NOTIFY_RANGE(NM_DBLCLK, 0, 0xFFFFFFFF, &CGUIBaseDlg::OnDblclkListCtrl)
    ON_NOTIFY_RANGE(TCN_SELCHANGE, 0, 0xFFFFFFFF, &CGUIBaseDlg::OnSelchangeTab)
    ON_BN_CLICKED(IDC_RESET, &CGUIBaseDlg::OnReset)
END_MESSAGE_MAP()

CGUIBaseDlg::CGUIBaseDlg(UINT templateId, CWnd* parent) : CDDXVDlg(templateId, parent) {}

// --- Virtual operations with nothing to do in the base ----------------------

CWnd* CGUIBaseDlg::GetParentDlgWindow()
{
    return GetParent();
}
BOOL CGUIBaseDlg::IsInteractiveGr()
{
    return FALSE;
}
void CGUIBaseDlg::ChangeColor(CWnd*, DWORD) {}
BOOL CGUIBaseDlg::Create(CWnd* parent)
{
    return CreateChild(parent);
}
void CGUIBaseDlg::GetData(CGUIBaseObj*& data)
{
    data = nullptr;
}
void CGUIBaseDlg::SetData(CGUIBaseObj*) {}
void CGUIBaseDlg::CreateMenu() {}
void CGUIBaseDlg::SetListCtrlDisplayType() {}
void CGUIBaseDlg::InitializeListCtrl() {}
CString CGUIBaseDlg::GetEditDelim()
{
    return u" ";
}
BOOL CGUIBaseDlg::IsZAxisEnabled()
{
    return FALSE;
}
void CGUIBaseDlg::SetAllInitDialogLike()
{
    InitDialogLike();
}
BOOL CGUIBaseDlg::PreTranslateMessageEx(void*)
{
    return FALSE;
}
int CGUIBaseDlg::GetAll()
{
    return 1;
}
int CGUIBaseDlg::SetAll()
{
    return 1;
}
int CGUIBaseDlg::GetAllDefault()
{
    return 1;
}
int CGUIBaseDlg::SetAllDefault()
{
    return 1;
}
void CGUIBaseDlg::EnableWindowObject(int) {}
void CGUIBaseDlg::EnableWindowSetOne(int enable)
{
    for (CWnd* child : GetChildren())
        child->EnableWindow(enable);
}
void CGUIBaseDlg::ShowChildWindows(long show)
{
    for (CWnd* child : GetChildren())
        child->ShowWindow(show ? SW_SHOW : SW_HIDE);
}
void CGUIBaseDlg::SetInitialDlgAndObj(long) {}
void CGUIBaseDlg::UpdateDependentWindows() {}
BOOL CGUIBaseDlg::OnAddTarget(UINT)
{
    return TRUE;
}
BOOL CGUIBaseDlg::OnUpdateAddTarget(CCmdUI*)
{
    return TRUE;
}
void CGUIBaseDlg::OnSetDefault(CMultiListInfo*, CString&) {}
void CGUIBaseDlg::OnUpdateComboChange(int) {}
BOOL CGUIBaseDlg::IsBootStrapWindowEnabled()
{
    return TRUE;
}
void CGUIBaseDlg::AddBitmapButton() {}
void CGUIBaseDlg::SendCloseMessage(long) {}
void CGUIBaseDlg::SendApplyMessage(long) {}
void CGUIBaseDlg::UpdateDataPart(long, int bSaveAndValidate)
{
    KVUpdateData(bSaveAndValidate);
}
void CGUIBaseDlg::AdjustWindowPositionForTabDlg(CTabCtrl*) {}
BOOL CGUIBaseDlg::IsWindowEnabled()
{
    return TRUE;
}
CStringArray CGUIBaseDlg::GetBitmapList(int, int)
{
    return {};
}
CStringArray CGUIBaseDlg::GetStringList(int, int)
{
    return {};
}
void CGUIBaseDlg::OnInPlaceEditDestroyed(CWnd*, int, int, CString) {}
void CGUIBaseDlg::MoveSourceListToTargetEditOnDblClk() {}
void CGUIBaseDlg::TempHelper() {}
void CGUIBaseDlg::ToolbarButtonCommand(UINT) {}

// --- The data cycle -----------------------------------------------------------

int CGUIBaseDlg::KVUpdateData(int bSaveAndValidate)
{
    return UpdateData(bSaveAndValidate) ? 1 : 0;
}

int CGUIBaseDlg::OKLike()
{
    if (!KVUpdateData(TRUE))
        return 0;
    return SetAll();
}

int CGUIBaseDlg::CancelLike()
{
    return 1;
}

int CGUIBaseDlg::InitDialogLike()
{
    GetAll();
    KVUpdateData(FALSE);
    UpdateDependentWindows();
    return 1;
}

BOOL CGUIBaseDlg::OnInitDialog()
{
    InitializeListCtrl();
    InitDialogLike();
    AddToolTips();
    return TRUE;
}

void CGUIBaseDlg::OnOK()
{
    if (!OKLike())
        return;
    m_bRun = true;
    EndDialog(IDOK);
}

void CGUIBaseDlg::OnCancel()
{
    CancelLike();
    EndDialog(IDCANCEL);
}

void CGUIBaseDlg::OnReset()
{
    GetAllDefault();
    KVUpdateData(FALSE);
    UpdateDependentWindows();
}

void CGUIBaseDlg::SetDlgCaptionID(UINT captionId)
{
    m_nCaptionID = captionId;
    CGUIBaseObj* data = nullptr;
    GetData(data);
    if (data)
        data->SetOwnerID(captionId);
    const CString caption = kal::framework::LoadResourceString(captionId);
    if (!caption.IsEmpty())
        SetWindowText(caption);
}

void CGUIBaseDlg::SetCaptionIDs(const std::array<UINT, 4>& captionIds)
{
    if (captionIds[0] != 0)
        SetDlgCaptionID(captionIds[0]);
}

void CGUIBaseDlg::SetMenuCaption(const CString& caption)
{
    SetWindowText(caption);
}

// --- Tool tips, controls ----------------------------------------------------

void CGUIBaseDlg::AddToolTip(UINT id, const CString& text, int bActivate)
{
    AddToolTip(GetDlgItem(id), text, bActivate);
}

void CGUIBaseDlg::AddToolTip(CWnd* control, const CString& text, int bActivate)
{
    if (!control) {
        ReportAssertion(__LINE__);
        return;
    }
    control->SetToolTipText(bActivate ? text : CString());
}

void CGUIBaseDlg::AddToolTips()
{
    // The tips the template gives.
    for (CWnd* child : GetChildren())
        if (child->GetTemplate() && !child->GetTemplate()->tip.IsEmpty())
            child->SetToolTipText(child->GetTemplate()->tip);
}

void CGUIBaseDlg::UpdateToolTipText(UINT id, const CString& text, int bActivate)
{
    AddToolTip(id, text, bActivate);
}

CComboBox* CGUIBaseDlg::GetComboBoxWnd(UINT id) const
{
    return dynamic_cast<CComboBox*>(GetDlgItem(id));
}

int CGUIBaseDlg::GetComboCurSel(UINT id) const
{
    const CComboBox* combo = GetComboBoxWnd(id);
    return combo ? combo->GetCurSel() : -1;
}

BOOL CGUIBaseDlg::IsCtrlEnabled(UINT id) const
{
    const CWnd* control = GetDlgItem(id);
    return control && control->CWnd::IsWindowEnabled();
}

void CGUIBaseDlg::EnableCtrl(UINT id, BOOL enable)
{
    if (CWnd* control = GetDlgItem(id))
        control->EnableWindow(enable);
    else
        ReportAssertion(__LINE__);
}

void CGUIBaseDlg::ShowCtrl(UINT id, BOOL show)
{
    if (CWnd* control = GetDlgItem(id))
        control->ShowWindow(show ? SW_SHOW : SW_HIDE);
    else
        ReportAssertion(__LINE__);
}

void CGUIBaseDlg::ReportAssertion(int line) const
{
    CKalAssertDlg(GetSourceFile(), line).DoPrint();
}

// --- Variable moves ---------------------------------------------------------

void CGUIBaseDlg::AddTargetList(CGUIListCtrl* target, UINT addButton, UINT removeButton, int nMax)
{
    m_targets.push_back({target, addButton, removeButton, nMax});
}

const CGUIBaseDlg::TargetList* CGUIBaseDlg::FindTarget(const CWnd* list) const
{
    for (const auto& t : m_targets)
        if (t.list == list)
            return &t;
    return nullptr;
}

const CGUIBaseDlg::TargetList* CGUIBaseDlg::FindTargetByButton(UINT buttonId) const
{
    for (const auto& t : m_targets)
        if (t.addButton == buttonId || t.removeButton == buttonId)
            return &t;
    return nullptr;
}

BOOL CGUIBaseDlg::MoveSourceToTarget(CGUIListCtrl* from, CGUIListCtrl* to, int direction, int bUnique, int nMax,
                                     int nFlags)
{
    if (!from || !to || from->GetSelectedCount() == 0)
        return FALSE;
    if (direction == 0) {
        std::vector<CGUIDataVariable> moving = from->GetSelectedVariables();
        if (nMax > 0) {
            const int room = std::max(0, nMax - to->GetItemCount());
            if (static_cast<int>(moving.size()) > room)
                moving.resize(static_cast<std::size_t>(room));
        }
        const std::vector<int> added = to->AddVariables(moving, bUnique != 0);
        from->SetSelection({});
        if (nFlags & 1)
            to->SetSelection(added);
        return added.empty() ? FALSE : TRUE;
    }
    // A target list gives its selection back; the source list of the copy
    // model still holds those variables, they are selected there.
    const std::vector<CGUIDataVariable> leaving = from->GetSelectedVariables();
    from->RemoveVariables(from->GetSelectedItems());
    to->AddVariables(leaving, true);
    std::vector<int> select;
    for (const auto& v : leaving)
        select.push_back(to->FindVariable(v.GetVariableName()));
    to->SetSelection((nFlags & 1) ? select : std::vector<int>{});
    return TRUE;
}

BOOL CGUIBaseDlg::EnableSourceToTarget(CGUIListCtrl* from, CGUIListCtrl* to, int buttonId) const
{
    if (!from || !to || from->GetSelectedCount() == 0)
        return FALSE;
    if (!from->IsSourceList())
        return TRUE;
    const TargetList* move = buttonId >= 0 ? FindTargetByButton(static_cast<UINT>(buttonId)) : FindTarget(to);
    if (move && move->nMax > 0 && to->GetItemCount() >= move->nMax)
        return FALSE;
    for (const int i : from->GetSelectedItems())
        if (!to->ContainsVariable(from->GetVariable(i).GetVariableName()))
            return TRUE;
    return FALSE;
}

void CGUIBaseDlg::RunButtonHandler(UINT buttonId)
{
    OnCmdMsg(WM_COMMAND, BN_CLICKED, buttonId);
}

void CGUIBaseDlg::ListCtrlElementRemovalHelper(CGUIListCtrl* list)
{
    if (const TargetList* t = FindTarget(list))
        RunButtonHandler(t->removeButton);
}

void CGUIBaseDlg::MoveSourceListToTargetListOnDblClk()
{
    // The first target list is the one a double click fills.
    if (!m_targets.empty() && IsCtrlEnabled(m_targets.front().addButton)) {
        RunButtonHandler(m_targets.front().addButton);
        UpdateDependentWindows();
    }
}

void CGUIBaseDlg::MoveTargetListOnDblClk()
{
    for (const auto& t : m_targets) {
        if (t.list->GetSelectedCount() > 0 && IsCtrlEnabled(t.removeButton)) {
            RunButtonHandler(t.removeButton);
            UpdateDependentWindows();
            return;
        }
    }
}

void CGUIBaseDlg::OnDblclkListCtrl(NMHDR* pNMHDR, LRESULT*)
{
    if (pNMHDR && pNMHDR->hwndFrom == m_pSourceList)
        MoveSourceListToTargetListOnDblClk();
    else if (pNMHDR && FindTarget(pNMHDR->hwndFrom))
        MoveTargetListOnDblClk();
}

void CGUIBaseDlg::OnItemchangedListCtrl(NMHDR*, LRESULT*)
{
    UpdateDependentWindows();
}

// --- Drag and drop --------------------------------------------------------------

void CGUIBaseDlg::OnBegindrag(NMHDR* pNMHDR, LRESULT*)
{
    m_pDragList = pNMHDR ? dynamic_cast<CGUIListCtrl*>(pNMHDR->hwndFrom) : nullptr;
    SetCursor(CursorShape::Arrow);
}

void CGUIBaseDlg::MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor)
{
    if (!m_pDragList)
        return;
    if (m_pDragList == m_pSourceList) {
        if (const TargetList* t = FindTarget(over); t && EnableSourceToTarget(m_pSourceList, t->list, static_cast<int>(t->addButton)))
            cursor = CursorShape::Drop;
        return;
    }
    if (FindTarget(m_pDragList) && over != m_pDragList)
        cursor = CursorShape::NoDrop;
}

void CGUIBaseDlg::LButtonUpListCtrlHelper(const CWnd* over)
{
    if (m_pDragList != m_pSourceList || !m_pSourceList)
        return;
    if (const TargetList* t = FindTarget(over); t && EnableSourceToTarget(m_pSourceList, t->list, static_cast<int>(t->addButton)))
        RunButtonHandler(t->addButton);
}

void CGUIBaseDlg::OnDragOver(CWnd* over)
{
    if (!m_pDragList)
        return;
    HICON cursor = GetCursor();
    MouseMoveListCtrlHelper(over, cursor);
    SetCursor(cursor);
}

void CGUIBaseDlg::OnDragRelease(CWnd* over)
{
    if (!m_pDragList)
        return;
    LButtonUpListCtrlHelper(over);
    m_pDragList = nullptr;
    SetCursor(CursorShape::Arrow);
}

// --- Context menu ---------------------------------------------------------------

void CGUIBaseDlg::OnContextMenu(CWnd* wnd)
{
    auto* list = dynamic_cast<CGUIListCtrl*>(wnd);
    CDialogDriver* driver = AfxGetDialogDriver();
    if (!list || list->GetMenuIDArray().IsEmpty() || !driver)
        return;
    CMenu menu;
    for (const auto& entry : list->GetMenuIDArray()) {
        CString caption = entry.caption;
        caption.Remove(u'&');
        caption.TrimRight(u':');
        menu.AppendMenu(entry.id, caption);
        CCmdUI update(entry.id);
        OnUpdateAddTarget(&update);
        menu.EnableMenuItem(entry.id, update.m_bEnabled);
    }
    if (const UINT chosen = driver->TrackPopupMenu(*list, menu))
        OnAddTarget(chosen);
}

// --- Tab pages ------------------------------------------------------------------

void CGUIBaseDlg::OnSelchangeTab(NMHDR*, LRESULT*)
{
    if (CGUITabCtrl* tabs = GetTabControl())
        tabs->UpdatePageStates();
}

void CGUIBaseDlg::OnInvalidated()
{
    if (CGUITabCtrl* tabs = GetTabControl())
        tabs->UpdatePageStates();
}
