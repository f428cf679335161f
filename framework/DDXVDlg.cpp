#include "framework/DDXVDlg.h"

#include "framework/FileEditCtrl.h"
#include "framework/GUIBaseObj.h"
#include "framework/GUIListCtrl.h"

#include <algorithm>
#include <charconv>
#include <cmath>

IMPLEMENT_DYNAMIC(CDDXVDlg, CDialog)

namespace {

enum class Parsed { ok, notANumber, outOfRange };

// Whole-text numbers, the host's decimal separator accepted beside '.'. A
// number of the right form that the holder's type cannot hold is out of
// range, not malformed.
template <class T>
Parsed Parse(CString text, T& value)
{
    text.Trim();
    const char16_t separator = kal::framework::DecimalSeparator();
    if (separator != u'.')
        text.Replace(std::u16string_view(&separator, 1), u".");
    const std::string s = text.ToUtf8();
    if (s.empty() || s[0] == '+')
        return Parsed::notANumber;
    const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (end != s.data() + s.size())
        return Parsed::notANumber;
    if (error == std::errc::result_out_of_range)
        return Parsed::outOfRange;
    return error == std::errc() ? Parsed::ok : Parsed::notANumber;
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
void CDDXVDlg::ExchangeNumber(CDataExchange* pDX, UINT id, CGUIData<T>& value, UINT messageId,
                              const NumberRule* rule)
{
    CWnd* control = pDX->PrepareCtrl(id);
    if (!control)
        return;
    if (!pDX->m_bSaveAndValidate) {
        control->SetWindowText(CGUIBaseObj::NumberText(value.m_Value));
        return;
    }
    T parsed{};
    const Parsed result = Parse(control->GetWindowText(), parsed);
    if (result != Parsed::ok || !IsFinite(parsed))
        pDX->FailEntry(id, result == Parsed::outOfRange ? kMsgOutOfRange : messageId,
                       rule ? *rule : NumberRule{std::is_integral_v<T>});
    value.m_Value = parsed;
    value.m_nState = value.m_Value == value.m_DefaultValue ? 1 : 0;
}

template <class T>
bool CDDXVDlg::ReadNumber(const CWnd& control, CGUIData<T>& value)
{
    T parsed{};
    if (Parse(control.GetWindowText(), parsed) != Parsed::ok || !IsFinite(parsed))
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

void CDDXVDlg::DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<int>& value, UINT messageId,
                          const NumberRule* rule)
{
    ExchangeNumber(pDX, id, value, messageId, rule);
}

void CDDXVDlg::DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<unsigned int>& value, UINT messageId,
                          const NumberRule* rule)
{
    ExchangeNumber(pDX, id, value, messageId, rule);
}

void CDDXVDlg::DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<double>& value, UINT messageId,
                          const NumberRule* rule)
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
