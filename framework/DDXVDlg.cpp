#include "framework/DDXVDlg.h"

#include "framework/FileEditCtrl.h"
#include "framework/GUIBaseObj.h"
#include "framework/GUIListCtrl.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <type_traits>

IMPLEMENT_DYNAMIC(CDDXVDlg, CDialog)

namespace {

// The number grammar of every edit: blanks around it; one sign, + or -;
// digits with one decimal separator (the host's, or '.') and an exponent
// (e or E, a sign, digits) for numbers that need not be whole; nothing else.
// A number too small to tell from zero is zero (-0 too); one too large for
// its holder cannot be read, like any text that is not a number.
template <class T>
bool Parse(CString text, T& value)
{
    text.Trim();
    const char16_t separator = kal::framework::DecimalSeparator();
    if (separator != u'.')
        text.Replace(std::u16string_view(&separator, 1), u".");
    const std::string s = text.ToUtf8();
    const bool plus = !s.empty() && s[0] == '+';
    const char* first = s.data() + (plus ? 1 : 0);
    const char* const last = s.data() + s.size();
    if (first == last || *first == '+' || (plus && *first == '-'))
        return false;
    auto result = std::from_chars(first, last, value);
    if constexpr (std::is_floating_point_v<T>) {
        if (result.ec == std::errc::result_out_of_range) {
            // Read wider: underflow goes to zero, overflow stays unreadable.
            long double wide = 0;
            result = std::from_chars(first, last, wide);
            value = static_cast<T>(wide);
        }
        if (value == 0)
            value = 0;
    }
    return result.ptr == last && result.ec == std::errc();
}

bool IsFinite(double v)
{
    return std::isfinite(v);
}

template <class T>
bool IsFinite(T)
{
    return true;
}

} // namespace

template <class T>
void CDDXVDlg::ExchangeNumber(CDataExchange* pDX, UINT id, CGUIData<T>& value, UINT messageId, const NumberRule* rule)
{
    CWnd* control = pDX->PrepareCtrl(id);
    if (!control)
        return;
    if (!pDX->m_bSaveAndValidate) {
        control->SetWindowText(CGUIBaseObj::NumberText(value.m_Value));
        return;
    }
    T parsed{};
    if (!Parse(control->GetWindowText(), parsed) || !IsFinite(parsed))
        pDX->FailEntry(id, messageId, rule ? *rule : NumberRule{std::is_integral_v<T>});
    value.m_Value = parsed;
    value.m_nState = value.m_Value == value.m_DefaultValue ? 1 : 0;
}

template <class T>
bool CDDXVDlg::ReadNumber(const CWnd& control, CGUIData<T>& value)
{
    T parsed{};
    if (!Parse(control.GetWindowText(), parsed) || !IsFinite(parsed))
        return false;
    value.m_Value = parsed;
    value.m_nState = value.m_Value == value.m_DefaultValue ? 1 : 0;
    return true;
}

bool CDDXVDlg::ReadKVText(const CWnd& control, CGUIData<int>& value)
{
    return ReadNumber(control, value);
}

bool CDDXVDlg::ReadKVText(const CWnd& control, CGUIData<unsigned int>& value)
{
    return ReadNumber(control, value);
}

bool CDDXVDlg::ReadKVText(const CWnd& control, CGUIData<double>& value)
{
    return ReadNumber(control, value);
}

bool CDDXVDlg::ReadNumberText(const CString& text, double& value)
{
    double parsed = 0;
    if (!Parse(text, parsed) || !IsFinite(parsed))
        return false;
    value = parsed;
    return true;
}

void CDDXVDlg::DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<int>& value, UINT messageId, const NumberRule* rule)
{
    ExchangeNumber(pDX, id, value, messageId, rule);
}

void CDDXVDlg::DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<unsigned int>& value, UINT messageId,
                          const NumberRule* rule)
{
    ExchangeNumber(pDX, id, value, messageId, rule);
}

void CDDXVDlg::DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<double>& value, UINT messageId, const NumberRule* rule)
{
    ExchangeNumber(pDX, id, value, messageId, rule);
}

void CDDXVDlg::DDX_CheckState(CDataExchange* pDX, UINT id, CGUIDataWnd<int>& value)
{
    auto* button = dynamic_cast<CButton*>(pDX->PrepareCtrl(id));
    if (!button)
        return;
    if (pDX->m_bSaveAndValidate) {
        value.m_Value = button->GetCheck();
        value.m_nWindowState = button->IsWindowEnabled() ? 1 : 0;
    } else {
        button->SetCheck(value.m_Value);
        button->EnableWindow(value.m_nWindowState != 0);
    }
}

void CDDXVDlg::DDV_MinMaxDouble(CDataExchange* pDX, const CGUIData<double>& value, const CGUIData<double>& min,
                                const CGUIData<double>& max, UINT messageId, int bMinOpen, int bMaxOpen)
{
    if (!pDX->m_bSaveAndValidate)
        return;
    const double v = value.m_Value;
    const bool belowMin = bMinOpen ? v <= min.m_Value : v < min.m_Value;
    const bool aboveMax = bMaxOpen ? v >= max.m_Value : v > max.m_Value;
    if (belowMin || aboveMax)
        pDX->FailEntry(pDX->m_idLastControl, messageId,
                       {false, true, min.m_Value, max.m_Value, bMinOpen != 0, bMaxOpen != 0});
}

void CDDXVDlg::DDV_MinMaxInt(CDataExchange* pDX, const CGUIData<int>& value, int min, int max, UINT messageId)
{
    if (pDX->m_bSaveAndValidate && (value.m_Value < min || value.m_Value > max))
        pDX->FailEntry(pDX->m_idLastControl, messageId, NumberRule::Between(min, max, true));
}

void CDDXVDlg::DDX_Text(CDataExchange* pDX, UINT id, CString& value, int nMaxChars, int bNotEmpty, int bTrim,
                        UINT messageId)
{
    CWnd* control = pDX->PrepareCtrl(id);
    if (!control)
        return;
    if (!pDX->m_bSaveAndValidate) {
        control->SetWindowText(value);
        return;
    }
    CString text = control->GetWindowText();
    if (bTrim)
        text.Trim();
    if ((bNotEmpty && text.IsEmpty()) || (nMaxChars > 0 && text.GetLength() > nMaxChars)) {
        AfxMessageBox(messageId);
        pDX->Fail();
    }
    value = text;
}

void CDDXVDlg::DDX_ListCtrlArray(CDataExchange* pDX, UINT id, CGUIArray<CGUIDataVariable>& list, UINT nTypeFilter,
                                 int bKeepSelection, int bSort)
{
    auto* control = dynamic_cast<CGUIListCtrl*>(pDX->PrepareCtrl(id));
    if (!control)
        return;
    if (pDX->m_bSaveAndValidate) {
        CGUIArray<CGUIDataVariable> shown = control->GetVariables();
        if (!bKeepSelection)
            for (auto& v : shown)
                v.SetSelected(0);
        if (nTypeFilter == 0) {
            list = std::move(shown);
            return;
        }
        // Variables the filter hid stay in the list, behind the shown ones.
        for (const auto& v : list)
            if (static_cast<UINT>(v.GetVariableType()) != nTypeFilter)
                shown.Add(v);
        list = std::move(shown);
        return;
    }
    if (nTypeFilter == 0 && !bSort) {
        control->SetVariables(list, bKeepSelection != 0); // shown as they are: no copy on the way
        return;
    }
    CGUIArray<CGUIDataVariable> shown;
    shown.Reserve(static_cast<std::size_t>(list.GetSize()));
    for (const auto& v : list)
        if (nTypeFilter == 0 || static_cast<UINT>(v.GetVariableType()) == nTypeFilter)
            shown.Add(v);
    if (bSort)
        std::stable_sort(shown.begin(), shown.end(), [](const CGUIDataVariable& a, const CGUIDataVariable& b) {
            return a.GetVariableName() < b.GetVariableName();
        });
    control->SetVariables(shown, bKeepSelection != 0);
}

void CDDXVDlg::DDX_ControlWarn(CDataExchange* pDX, UINT id, UINT messageId)
{
    if (!pDX->m_bSaveAndValidate || messageId == 0)
        return;
    pDX->m_idLastControl = id;
    AfxMessageBox(messageId);
    pDX->Fail();
}

void CDDXVDlg::DDX_ControlWarn(CDataExchange* pDX, UINT id, UINT messageId, const NumberRule& rule)
{
    if (pDX->m_bSaveAndValidate && messageId != 0)
        pDX->FailEntry(id, messageId, rule);
}

void CDDXVDlg::DDX_FileEditCtrl(CDataExchange* pDX, UINT id, CFileEditCtrl& control, CString& fileName, int bSaveDialog,
                                int bPromptOverwrite, int bMustExist, const CString& defaultExtension,
                                const CString& filter, int)
{
    DDX_Control(pDX, id, control);
    if (!control.IsCreated())
        return;
    control.SetFileDialogOptions(bSaveDialog != 0, bPromptOverwrite != 0, bMustExist != 0, defaultExtension, filter);
    if (pDX->m_bSaveAndValidate)
        fileName = control.GetWindowText().Trim();
    else
        control.SetWindowText(fileName);
}
