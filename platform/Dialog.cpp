#include "platform/Dialog.h"

#include "platform/DataExchange.h"
#include "platform/Diagnostics.h"
#include "platform/Exceptions.h"

#include <algorithm>
#include <iostream>
#include <optional>
#include <utility>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

namespace {

CDialogDriver*& ActiveDriver()
{
    static CDialogDriver* driver = nullptr;
    return driver;
}

kal::DialogTemplateSource& TemplateSource()
{
    static kal::DialogTemplateSource source;
    return source;
}

kal::MessageBoxSink& MessageSink()
{
    static kal::MessageBoxSink sink;
    return sink;
}

kal::HelpSink& HelpService()
{
    static kal::HelpSink sink;
    return sink;
}

std::unique_ptr<CWnd> MakeControl(ControlKind kind)
{
    switch (kind) {
    case ControlKind::PushButton:
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
    case ControlKind::GroupBox: return std::make_unique<CButton>();
    case ControlKind::Edit:
    case ControlKind::FileEdit: return std::make_unique<CEdit>();
    case ControlKind::ComboBox: return std::make_unique<CComboBox>();
    case ControlKind::List: return std::make_unique<CListCtrl>();
    case ControlKind::Tab: return std::make_unique<CTabCtrl>();
    case ControlKind::Grid: return std::make_unique<CGridCtrl>();
    case ControlKind::Static: break;
    }
    return std::make_unique<CStatic>();
}

} // namespace

CDialogDriver* AfxGetDialogDriver()
{
    return ActiveDriver();
}

CDialogDriver* AfxSetDialogDriver(CDialogDriver* driver)
{
    return std::exchange(ActiveDriver(), driver);
}

namespace kal {

void SetDialogTemplateSource(DialogTemplateSource source)
{
    TemplateSource() = std::move(source);
}

void SetMessageBoxSink(MessageBoxSink sink)
{
    MessageSink() = std::move(sink);
}

HelpSink SetHelpSink(HelpSink sink)
{
    return std::exchange(HelpService(), std::move(sink));
}

} // namespace kal

void AfxMessageBox(UINT promptId, const CString& detail)
{
    if (const auto& sink = MessageSink())
        sink(promptId, detail);
    else
        std::cerr << "message " << promptId << (detail.IsEmpty() ? "" : ": ") << detail.ToUtf8() << std::endl;
}

void AfxWinHelp(UINT context)
{
    if (const auto& sink = HelpService())
        sink(context);
}

CDialog::CDialog(UINT templateId, CWnd* parent) : m_nTemplateID(templateId)
{
    m_pParent = parent;
    m_kind = ControlKind::Static;
}

CDialog::~CDialog() = default;

bool CDialog::CreateControls()
{
    if (m_bCreated)
        return true;
    const auto& source = TemplateSource();
    m_template = source ? source(m_nTemplateID) : nullptr;
    if (!m_template) {
        kal::ReportAssertion("platform/Dialog", __LINE__);
        return false;
    }
    m_owned.clear();
    m_children.clear();
    // A caption given before creation (a page or menu caption) stays.
    if (m_strText.IsEmpty())
        m_strText = m_template->caption;
    m_bCreated = true;
    m_bEnabled = true;
    m_bVisible = true;
    m_bEnded = false;
    m_nResult = 0;
    m_pFocus = nullptr;
    for (const auto& t : m_template->controls) {
        auto control = MakeControl(t.kind);
        control->InitFromTemplate(t, this);
        AddChild(control.get());
        m_owned.push_back(std::move(control));
    }
    return true;
}

INT_PTR CDialog::DoModal()
{
    CDialogDriver* driver = AfxGetDialogDriver();
    if (!driver) {
        kal::ReportAssertion("platform/Dialog", __LINE__);
        return -1;
    }
    if (!CreateControls())
        return -1;
    m_bModal = true;
    // The controls go and the dialog stops being modal however the run ends,
    // an exception from a driver or handler included.
    struct Closer {
        CDialog& dialog;
        ~Closer()
        {
            dialog.DestroyWindow();
            dialog.m_bModal = false;
        }
    } closer{*this};
    OnInitDialog();
    return m_bEnded ? m_nResult : driver->RunModal(*this);
}

BOOL CDialog::CreateChild(CWnd* parent)
{
    m_pParent = parent;
    if (!CreateControls())
        return FALSE;
    OnInitDialog();
    return TRUE;
}

void CDialog::DestroyWindow()
{
    m_pFocus = nullptr;
    for (CWnd* child : m_children)
        child->Detach();
    Detach();
}

BOOL CDialog::OnInitDialog()
{
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

void CDialog::EndDialog(int result)
{
    m_nResult = result;
    m_bEnded = true;
}

BOOL CDialog::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange dx(this, bSaveAndValidate);
    try {
        DoDataExchange(&dx);
    } catch (const CUserException&) {
        // The user is to correct the entry that was refused.
        if (CWnd* control = dx.m_idLastControl ? GetDlgItem(dx.m_idLastControl) : nullptr)
            control->SetFocus();
        return FALSE;
    }
    return TRUE;
}

void CDialog::DoDataExchange(CDataExchange*) {}

void CDialog::CheckDlgButton(UINT id, UINT check)
{
    if (auto* button = dynamic_cast<CButton*>(GetDlgItem(id)))
        button->SetCheck(static_cast<int>(check));
}

UINT CDialog::IsDlgButtonChecked(UINT id) const
{
    const auto* button = dynamic_cast<const CButton*>(GetDlgItem(id));
    return button ? static_cast<UINT>(button->GetCheck()) : 0;
}

void CDialog::CheckRadioButton(UINT firstId, UINT lastId, UINT checkId)
{
    for (CWnd* child : m_children)
        if (auto* button = dynamic_cast<CButton*>(child);
            button && child->GetDlgCtrlID() >= firstId && child->GetDlgCtrlID() <= lastId)
            button->SetCheck(child->GetDlgCtrlID() == checkId ? BST_CHECKED : BST_UNCHECKED);
}

int CDialog::GetCheckedRadioButton(UINT firstId, UINT lastId) const
{
    for (CWnd* child : m_children)
        if (auto* button = dynamic_cast<CButton*>(child);
            button && child->GetDlgCtrlID() >= firstId && child->GetDlgCtrlID() <= lastId && button->GetCheck())
            return static_cast<int>(child->GetDlgCtrlID());
    return 0;
}

void CDialog::SetDlgItemText(UINT id, const CString& text)
{
    if (CWnd* control = GetDlgItem(id))
        control->SetWindowText(text);
}

CString CDialog::GetDlgItemText(UINT id) const
{
    const CWnd* control = GetDlgItem(id);
    return control ? control->GetWindowText() : CString();
}

std::vector<CButton*> CDialog::GetRadioGroup(const CWnd* radio) const
{
    const auto isRadio = [](const CWnd* w) { return w->GetKind() == ControlKind::RadioButton; };
    const auto startsGroup = [](const CWnd* w) { return w->GetTemplate() && (w->GetTemplate()->style & WS_GROUP); };
    std::vector<CButton*> group;
    bool found = false;
    for (CWnd* child : m_children) {
        if (!isRadio(child) || startsGroup(child)) {
            if (found)
                break;
            group.clear();
            if (!isRadio(child))
                continue;
        }
        if (auto* button = dynamic_cast<CButton*>(child))
            group.push_back(button);
        if (child == radio)
            found = true;
    }
    return found ? group : std::vector<CButton*>();
}

namespace {

bool IsCaptionedLabel(const CWnd& wnd)
{
    const ControlKind kind = wnd.GetKind();
    return wnd.GetTemplate() && !wnd.GetTemplate()->caption.IsEmpty() &&
           (kind == ControlKind::Static || kind == ControlKind::CheckBox || kind == ControlKind::RadioButton);
}

bool EndsWithColon(const CString& caption)
{
    CString trimmed = caption;
    trimmed.TrimRight();
    return !trimmed.IsEmpty() && trimmed[trimmed.GetLength() - 1] == u':';
}

} // namespace

const CWnd* CDialog::GetLabelOf(const CWnd& control) const
{
    const ControlTemplate* self = control.GetTemplate();
    const auto at = std::find(m_children.begin(), m_children.end(), &control);
    if (!self || at == m_children.end())
        return nullptr;
    // A label written just before its field: "Tolerance:" then the edit.
    for (auto it = std::make_reverse_iterator(at); it != m_children.rend(); ++it) {
        if ((*it)->GetKind() == ControlKind::GroupBox)
            continue;
        if ((*it)->GetKind() == ControlKind::Static && IsCaptionedLabel(**it) && EndsWithColon((*it)->GetWindowText()))
            return *it;
        break;
    }
    // Else, for a control without a caption of its own, by place: a caption
    // on the same row to the left ("Continuous" before its measure), else
    // one just above (a check box over its grid).
    if (!self->caption.IsEmpty())
        return nullptr;
    constexpr int kAboveReach = 14; // dialog units between a caption and the field below it
    const CWnd* best = nullptr;
    int bestDistance = 0;
    for (const bool sameRow : {true, false}) {
        for (const CWnd* child : m_children) {
            if (child == &control || !IsCaptionedLabel(*child))
                continue;
            const ControlTemplate& t = *child->GetTemplate();
            std::optional<int> distance;
            if (sameRow && t.y < self->y + self->cy && t.y + t.cy > self->y && t.x + t.cx <= self->x + 2)
                distance = self->x - (t.x + t.cx);
            if (!sameRow && t.x < self->x + self->cx && t.x + t.cx > self->x && t.y + t.cy <= self->y + 1 &&
                self->y - (t.y + t.cy) <= kAboveReach)
                distance = self->y - (t.y + t.cy);
            if (distance && (!best || *distance < bestDistance)) {
                best = child;
                bestDistance = *distance;
            }
        }
        if (best)
            return best;
    }
    return nullptr;
}

CString CDialog::GetLabelText(const CWnd& control) const
{
    const CWnd* label = GetLabelOf(control);
    if (!label)
        return {};
    const std::u16string& caption = label->GetWindowText().Str();
    std::u16string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i; // "&&" is an ampersand, "&x" marks x
        plain += caption[i];
    }
    CString text(plain);
    text.TrimRight();
    text.TrimRight(u':');
    text.TrimRight();
    return text;
}

UINT CDialog::GetHelpContext()
{
    return m_nHelpContext;
}

void CDialog::OnHelp()
{
    AfxWinHelp(GetHelpContext());
}

void CDialog::OnDragOver(CWnd*) {}
void CDialog::OnDragRelease(CWnd*) {}
void CDialog::OnContextMenu(CWnd*) {}

BOOL CDialog::OnCmdMsg(UINT nMessage, int nCode, UINT nID, NMHDR* pNMHDR, LRESULT* pResult, CCmdUI* pCmdUI)
{
    if (CWnd::OnCmdMsg(nMessage, nCode, nID, pNMHDR, pResult, pCmdUI))
        return TRUE;
    // The framework's default handling of the two standard buttons.
    if (nMessage == WM_COMMAND && nCode == BN_CLICKED) {
        if (nID == static_cast<UINT>(IDOK)) {
            OnOK();
            return TRUE;
        }
        if (nID == static_cast<UINT>(IDCANCEL)) {
            OnCancel();
            return TRUE;
        }
        if (nID == static_cast<UINT>(IDHELP)) {
            OnHelp();
            return TRUE;
        }
    }
    return FALSE;
}
