#include "framework/GUIBaseDlg.h"

#include "framework/Fields.h"
#include "framework/GUITabCtrl.h"
#include "framework/GUITabDlg.h"
#include "framework/HostLink.h"
#include "host/KalAssertDlg.h"

#include <cmath>
#include <limits>
#include <sstream>
#include <type_traits>
#include <unordered_set>

IMPLEMENT_DYNAMIC(CGUIBaseDlg, CDDXVDlg)

BEGIN_MESSAGE_MAP(CGUIBaseDlg, CDDXVDlg)
    ON_NOTIFY_RANGE(LVN_ITEMCHANGED, 0, 0xFFFFFFFF, &CGUIBaseDlg::OnItemchangedListCtrl)
    ON_NOTIFY_RANGE(LVN_BEGINDRAG, 0, 0xFFFFFFFF, &CGUIBaseDlg::OnBegindrag)
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

UINT CGUIBaseDlg::GetHelpContext()
{
    if (const UINT context = CDDXVDlg::GetHelpContext())
        return context;
    CGUIBaseObj* data = nullptr;
    GetData(data);
    return data ? data->GetDialogID() : 0;
}
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
    CreateListCtrlMenu();
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

bool CGUIBaseDlg::IsCtrlInUse(UINT id) const
{
    for (const CWnd* w = GetDlgItem(id); w; w = w->GetParent())
        if (!w->CWnd::IsWindowEnabled())
            return false;
    return GetDlgItem(id) != nullptr;
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

CGUIListCtrl& CGUIBaseDlg::ListCtrl(UINT listId)
{
    auto& control = m_listCtrls[listId];
    if (!control)
        control = std::make_unique<CGUIListCtrl>();
    return *control;
}

CFileEditCtrl& CGUIBaseDlg::FileEditCtrl(UINT id)
{
    auto& control = m_fileEditCtrls[id];
    if (!control)
        control = std::make_unique<CFileEditCtrl>();
    return *control;
}

void CGUIBaseDlg::SetSourceList(UINT listId)
{
    auto& control = m_listCtrls[listId];
    control = std::make_unique<CGUIListCtrl>(true);
    m_pSourceList = control.get();
}

void CGUIBaseDlg::AddRoleList(CRoleList row)
{
    ListCtrl(row.list);
    m_roleLists.push_back(std::move(row));
}

const CRoleList* CGUIBaseDlg::FindRoleList(const CWnd* list) const
{
    for (const auto& row : m_roleLists) {
        const auto it = m_listCtrls.find(row.list);
        if (it != m_listCtrls.end() && it->second.get() == list)
            return &row;
    }
    return nullptr;
}

const CRoleList* CGUIBaseDlg::FindRoleListByButton(UINT buttonId) const
{
    for (const auto& row : m_roleLists)
        if (row.add == buttonId || row.remove == buttonId)
            return &row;
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
    select.reserve(leaving.size());
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
    const CRoleList* move = buttonId >= 0 ? FindRoleListByButton(static_cast<UINT>(buttonId)) : FindRoleList(to);
    if (move && move->maxItems > 0 && to->GetItemCount() >= move->maxItems)
        return FALSE;
    for (const int i : from->GetSelectedItems())
        if (!to->ContainsVariable(from->GetVariable(i).GetVariableName()))
            return TRUE;
    return FALSE;
}

bool CGUIBaseDlg::AcceptsSelectedTypes(const CRoleList& row) const
{
    return !row.acceptsStrings || row.acceptsStrings() ||
           !CGUIListCtrl::IsSelectetVariableTypePresent(m_pSourceList, NmsEnum::VT_STRING);
}

bool CGUIBaseDlg::CanAdd(const CRoleList& row) const
{
    if (!m_pSourceList)
        return false;
    CGUIListCtrl* target = m_listCtrls.at(row.list).get();
    return EnableSourceToTarget(m_pSourceList, target, static_cast<int>(row.add)) && !m_pSourceList->IsBusy() &&
           AcceptsSelectedTypes(row) && (!row.enabled || row.enabled());
}

bool CGUIBaseDlg::CanRemove(const CRoleList& row) const
{
    if (!m_pSourceList)
        return false;
    CGUIListCtrl* target = m_listCtrls.at(row.list).get();
    return EnableSourceToTarget(target, m_pSourceList, -1) && !target->IsBusy() && (!row.enabled || row.enabled()) &&
           (!row.removeEnabled || row.removeEnabled());
}

void CGUIBaseDlg::UpdateDependentWindows()
{
    for (const auto& row : m_roleLists) {
        EnableCtrl(row.add, CanAdd(row));
        EnableCtrl(row.remove, CanRemove(row));
        ExplainStringsRefused(row);
    }
}

void CGUIBaseDlg::ExplainStringsRefused(const CRoleList& row)
{
    CWnd* button = GetDlgItem(row.add);
    if (!button)
        return;
    const bool refused = m_pSourceList && row.acceptsStrings && !row.acceptsStrings() &&
                         CGUIListCtrl::IsSelectetVariableTypePresent(m_pSourceList, NmsEnum::VT_STRING);
    const auto usual = m_usualTips.find(row.add);
    if (!refused) {
        if (usual != m_usualTips.end()) {
            button->SetToolTipText(usual->second);
            m_usualTips.erase(usual);
        }
        return;
    }
    if (usual == m_usualTips.end())
        m_usualTips.emplace(row.add, button->GetToolTipText());
    CString tip = kal::framework::LoadResourceString(kTipNoStringVariables);
    const CWnd* list = GetDlgItem(row.list);
    tip.Replace(u"%1", (list ? GetLabelText(*list) : CString()).Str());
    button->SetToolTipText(tip);
}

void CGUIBaseDlg::MoveRoleList(const CRoleList& row, bool add)
{
    CGUIListCtrl* target = &ListCtrl(row.list);
    if (add)
        MoveSourceToTarget(m_pSourceList, target, 0, 1, row.maxItems, 5);
    else
        MoveSourceToTarget(target, m_pSourceList, 1, 1, 0, 5);
    if (row.afterMove)
        row.afterMove();
    UpdateDependentWindows();
}

BOOL CGUIBaseDlg::OnCmdMsg(UINT nMessage, int nCode, UINT nID, NMHDR* pNMHDR, LRESULT* pResult, CCmdUI* pCmdUI)
{
    // The role lists' buttons need no entry in any message map.
    if (nMessage == WM_COMMAND && nCode == BN_CLICKED && m_pSourceList)
        if (const CRoleList* row = FindRoleListByButton(nID)) {
            MoveRoleList(*row, row->add == nID);
            return TRUE;
        }
    return CDDXVDlg::OnCmdMsg(nMessage, nCode, nID, pNMHDR, pResult, pCmdUI);
}

void CGUIBaseDlg::RunButtonHandler(UINT buttonId)
{
    OnCmdMsg(WM_COMMAND, BN_CLICKED, buttonId);
}

void CGUIBaseDlg::ListCtrlElementRemovalHelper(CGUIListCtrl* list)
{
    // A drag out of a list removes only what its remove button could.
    if (const CRoleList* row = FindRoleList(list); row && CanRemove(*row))
        RunButtonHandler(row->remove);
}

void CGUIBaseDlg::MoveSourceListToTargetListOnDblClk()
{
    // The first role list is the one a double click fills.
    if (!m_roleLists.empty() && IsCtrlEnabled(m_roleLists.front().add)) {
        RunButtonHandler(m_roleLists.front().add);
        UpdateDependentWindows();
    }
}

void CGUIBaseDlg::MoveTargetListOnDblClk()
{
    // The list double-clicked gives its selection back; the other lists
    // keep theirs.
    for (const auto& row : m_roleLists) {
        if (m_pDblClkList && &ListCtrl(row.list) != m_pDblClkList)
            continue;
        if (ListCtrl(row.list).GetSelectedCount() > 0 && IsCtrlEnabled(row.remove)) {
            RunButtonHandler(row.remove);
            UpdateDependentWindows();
            return;
        }
    }
}

void CGUIBaseDlg::OnDblclkListCtrl(NMHDR* pNMHDR, LRESULT*)
{
    if (pNMHDR && m_pSourceList && pNMHDR->hwndFrom == m_pSourceList)
        MoveSourceListToTargetListOnDblClk();
    else if (pNMHDR && FindRoleList(pNMHDR->hwndFrom)) {
        m_pDblClkList = pNMHDR->hwndFrom;
        MoveTargetListOnDblClk();
        m_pDblClkList = nullptr;
    }
}

void CGUIBaseDlg::OnItemchangedListCtrl(NMHDR*, LRESULT*)
{
    UpdateDependentWindows();
}

// --- Drag and drop --------------------------------------------------------------

void CGUIBaseDlg::OnBegindrag(NMHDR* pNMHDR, LRESULT*)
{
    auto* list = pNMHDR ? dynamic_cast<CGUIListCtrl*>(pNMHDR->hwndFrom) : nullptr;
    // Only the page's own variable lists take part in drags.
    m_pDragList = list && (list == m_pSourceList || FindRoleList(list)) ? list : nullptr;
    SetCursor(CursorShape::Arrow);
}

bool CGUIBaseDlg::AcceptsDrop(const CRoleList& row)
{
    // A disabled list takes nothing, as a disabled window takes no input;
    // nor does a list take a variable of a type its add button refuses.
    CGUIListCtrl& target = ListCtrl(row.list);
    return target.IsWindowEnabled() && (!TypeRuleAppliesToDragsAndMenu() || AcceptsSelectedTypes(row)) &&
           EnableSourceToTarget(m_pSourceList, &target, static_cast<int>(row.add));
}

void CGUIBaseDlg::MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor)
{
    if (!m_pDragList)
        return;
    if (m_pDragList == m_pSourceList) {
        if (const CRoleList* row = FindRoleList(over); row && AcceptsDrop(*row))
            cursor = CursorShape::Drop;
        return;
    }
    // Dragging out of a target list takes the variables out of it, where
    // its remove button could; where it could not, nothing may be dropped.
    if (over != m_pDragList) {
        const CRoleList* row = FindRoleList(m_pDragList);
        cursor = row && CanRemove(*row) ? CursorShape::Remove : CursorShape::NoDrop;
    }
}

void CGUIBaseDlg::LButtonUpListCtrlHelper(const CWnd* over)
{
    if (!m_pDragList)
        return;
    if (m_pDragList == m_pSourceList) {
        if (const CRoleList* row = FindRoleList(over); row && AcceptsDrop(*row))
            RunButtonHandler(row->add);
        return;
    }
    if (over != m_pDragList)
        ListCtrlElementRemovalHelper(m_pDragList);
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

void CGUIBaseDlg::CreateListCtrlMenu()
{
    if (!m_pSourceList)
        return;
    CArray<CMenuIdStr> entries;
    for (const auto& row : m_roleLists)
        if (row.menuCommand)
            entries.Add({row.menuLabel ? GetDlgItemText(row.menuLabel) : CString(), row.menuCommand});
    m_pSourceList->SetMenuIDArray(entries);
}

BOOL CGUIBaseDlg::OnAddTarget(UINT commandId)
{
    for (const auto& row : m_roleLists)
        if (row.menuCommand == commandId && commandId != 0) {
            MoveRoleList(row, true);
            break;
        }
    return TRUE;
}

BOOL CGUIBaseDlg::OnUpdateAddTarget(CCmdUI* pCmdUI)
{
    // The menu tests movability only; the buttons' other conditions do not
    // apply to it.
    for (const auto& row : m_roleLists)
        if (row.menuCommand == pCmdUI->m_nID && row.menuCommand != 0)
            pCmdUI->Enable(AcceptsDrop(row));
    return TRUE;
}

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

// --- Data exchange of fields -----------------------------------------------------

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, int& value)
{
    const CWnd* control = GetDlgItem(field.control);
    switch (control ? control->GetKind() : ControlKind::CheckBox) {
    case ControlKind::RadioButton: DDX_Radio(pDX, field.control, value); break;
    case ControlKind::ComboBox: DDX_CBIndex(pDX, field.control, value); break;
    case ControlKind::Edit: ::DDX_Text(pDX, field.control, value); break;
    default: DDX_Check(pDX, field.control, value); break;
    }
}

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CString& value)
{
    CDDXVDlg::DDX_Text(pDX, field.control, value, 0, 0, 1, 0);
    if (pDX->m_bSaveAndValidate && IsCtrlInUse(field.control)) {
        // A text goes into a command line: it may not start a line of its own.
        const bool missing = field.requiredBy && IsDlgButtonChecked(field.requiredBy) && value.IsEmpty();
        if (missing || ContainsControlCharacter(value)) {
            pDX->m_idLastControl = field.control;
            AfxMessageBox(missing ? kMsgTextRequired : kMsgControlCharacter);
            pDX->Fail();
        }
    }
    const CWnd* control = GetDlgItem(field.control);
    if (control && control->GetKind() == ControlKind::FileEdit) {
        // Files are the package's data files unless the user names another.
        const bool open = (field.flags & kal::kFieldOpenFile) != 0;
        DDX_FileEditCtrl(pDX, field.control, FileEditCtrl(field.control), value, open ? 0 : 1, open ? 0 : 1,
                         open ? 1 : 0, u".kvd", u"", 0);
    }
}

template <class T>
void CGUIBaseDlg::ExchangeNumberField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<T>& value,
                                      UINT parseMessage)
{
    if (field.flags & kal::kFieldOptional) {
        // Empty stands for the default, both ways; a value the user gave
        // goes through the exchange and the range below.
        CWnd* control = pDX->PrepareCtrl(field.control);
        if (!control)
            return;
        if (!pDX->m_bSaveAndValidate && value.m_nState == 1 && value.m_Value == value.m_DefaultValue) {
            control->SetWindowText(CString());
            return;
        }
        if (pDX->m_bSaveAndValidate && control->GetWindowText().Trim().IsEmpty()) {
            value.m_Value = value.m_DefaultValue;
            value.m_nState = 1;
            return;
        }
    }
    if constexpr (std::is_floating_point_v<T>) {
        if (field.flags & kal::kFieldBlank) {
            // Empty is a state of its own, both ways: no number.
            CWnd* control = pDX->PrepareCtrl(field.control);
            if (!control)
                return;
            if (!pDX->m_bSaveAndValidate && std::isnan(value.m_Value)) {
                control->SetWindowText(CString());
                return;
            }
            if (pDX->m_bSaveAndValidate && control->GetWindowText().Trim().IsEmpty()) {
                value.m_Value = std::numeric_limits<T>::quiet_NaN();
                value.m_nState = 0;
                return;
            }
        }
    }
    if (const CWnd* control = GetDlgItem(field.control);
        pDX->m_bSaveAndValidate && control && !IsCtrlInUse(field.control)) {
        // An edit the user cannot reach refuses nothing: its text counts
        // when it is a number, else the value stays as it was.
        ReadKVText(*control, value);
        return;
    }
    const bool ranged = field.rangeMessage != 0;
    const NumberRule rule =
        ranged ? NumberRule::Between(field.min, field.max, std::is_integral_v<T>) : NumberRule{std::is_integral_v<T>};
    // Text that is no number is refused with the range too, so that the
    // message says at once what the field takes.
    DDX_KVText(pDX, field.control, value, parseMessage, &rule);
    if (!pDX->m_bSaveAndValidate || !ranged)
        return;
    const double v = static_cast<double>(value.m_Value);
    if (v < field.min || v > field.max)
        pDX->FailEntry(field.control, field.rangeMessage, rule);
}

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<int>& value)
{
    ExchangeNumberField(pDX, field, value, AFX_IDP_PARSE_INT);
}

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<unsigned int>& value)
{
    ExchangeNumberField(pDX, field, value, AFX_IDP_PARSE_INT);
}

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIData<double>& value)
{
    ExchangeNumberField(pDX, field, value, AFX_IDP_PARSE_REAL);
}

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIDataWnd<int>& value)
{
    DDX_CheckState(pDX, field.control, value);
}

void CGUIBaseDlg::ExchangeField(CDataExchange* pDX, const CFieldExchange& field, CGUIArray<CGUIDataVariable>& value)
{
    DDX_Control(pDX, field.control, ListCtrl(field.control));
    DDX_ListCtrlArray(pDX, field.control, value, 0, 1, 0);
}

// --- Stored values against their controls -----------------------------------------

namespace {

[[noreturn]] void RefuseField(UINT control, const std::string& what, double value)
{
    std::ostringstream shown;
    shown << value;
    throw kal::CFieldValueException("holds a value its dialog cannot show: control " + std::to_string(control) + ", " +
                                    what + ", is " + shown.str());
}

// A holder's state says whether its value is its default: yes or no. (Its
// flags are the analyses' own marks, with values of their choosing.)
template <class T>
void CheckHolderState(UINT control, const CGUIData<T>& value)
{
    if (value.m_nState != 0 && value.m_nState != 1)
        RefuseField(control, "a value whose state is 0 or 1", value.m_nState);
}

template <class T>
void CheckNumberHolder(const CFieldExchange& field, const CGUIData<T>& value)
{
    CheckHolderState(field.control, value);
    // The value itself is not judged. An emptied bound holds no number
    // (NaN); and a page lets a value outside its range stand while its edit
    // is out of use, so a stored one may be the user's own (the page's OK
    // refuses it when the edit is in use).
}

} // namespace

void CGUIBaseDlg::CheckField(const CFieldExchange& field, int value) const
{
    const CWnd* control = GetDlgItem(field.control);
    if (!control)
        return;
    switch (control->GetKind()) {
    case ControlKind::RadioButton: {
        const auto buttons = static_cast<int>(GetRadioGroup(control).size());
        if (value < 0 || value >= buttons)
            RefuseField(field.control, "a group of " + std::to_string(buttons) + " radio buttons counted from 0",
                        value);
        break;
    }
    case ControlKind::ComboBox: {
        // No selection (-1) is a state a list may be in; a list not filled
        // yet cannot judge.
        const auto* combo = dynamic_cast<const CComboBox*>(control);
        const int entries = combo ? combo->GetCount() : 0;
        if (entries > 0 && (value < -1 || value >= entries))
            RefuseField(field.control, "a list of " + std::to_string(entries) + " entries counted from 0", value);
        break;
    }
    case ControlKind::CheckBox:
        if (value != 0 && value != 1)
            RefuseField(field.control, "a check box that is 0 or 1", value);
        break;
    default: break;
    }
}

void CGUIBaseDlg::CheckField(const CFieldExchange& field, const CGUIData<int>& value) const
{
    if (GetDlgItem(field.control))
        CheckNumberHolder(field, value);
}

void CGUIBaseDlg::CheckField(const CFieldExchange& field, const CGUIData<unsigned int>& value) const
{
    if (GetDlgItem(field.control))
        CheckNumberHolder(field, value);
}

void CGUIBaseDlg::CheckField(const CFieldExchange& field, const CGUIData<double>& value) const
{
    if (GetDlgItem(field.control))
        CheckNumberHolder(field, value);
}

void CGUIBaseDlg::CheckField(const CFieldExchange& field, const CGUIDataWnd<int>& value) const
{
    if (!GetDlgItem(field.control))
        return;
    CheckField(field, value.m_Value);
    if (value.m_nWindowState != 0 && value.m_nWindowState != 1)
        RefuseField(field.control, "an enable state that is 0 or 1", value.m_nWindowState);
}

void CGUIBaseDlg::CheckField(const CFieldExchange& field, const CGUIArray<CGUIDataVariable>& value) const
{
    if (!GetDlgItem(field.control))
        return;
    for (int i = 0; i < value.GetSize(); ++i) {
        const auto type = value[i].GetVariableType();
        if (type != NmsEnum::VT_UNKNOWN && type != NmsEnum::VT_NUMERIC && type != NmsEnum::VT_STRING)
            RefuseField(field.control, "a list whose variables are numeric (1) or strings (3)", type);
    }
}

// --- Tab pages ------------------------------------------------------------------

CGUITabDlg* CGUIBaseDlg::GetTabDlg() const
{
    return dynamic_cast<CGUITabDlg*>(GetParent());
}

void CGUIBaseDlg::NotifyTab()
{
    if (CGUITabDlg* tab = GetTabDlg())
        tab->OnPageChanged(this);
}

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
