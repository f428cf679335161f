#include "platform/DataExchange.h"

#include "platform/Diagnostics.h"
#include "platform/Exceptions.h"

#include <charconv>
#include <cmath>
#include <string>
#include <type_traits>

namespace {

// The whole text (blanks around it aside) must be the number; from_chars
// ignores the C locale, which a GUI toolkit may have changed.
template <class T>
bool ParseWhole(CString text, T& value)
{
    const std::string s = text.Trim().ToUtf8();
    const char* first = s.data() + (s.size() > 1 && s[0] == '+' ? 1 : 0);
    const auto [end, error] = std::from_chars(first, s.data() + s.size(), value);
    if constexpr (std::is_floating_point_v<T>)
        if (!std::isfinite(value))
            return false;
    return !s.empty() && error == std::errc() && end == s.data() + s.size();
}

// Shows the number, or reads it back (message `parseMessage` and Fail when
// the text is not one).
template <class T>
void ExchangeNumber(CDataExchange* pDX, UINT id, T& value, UINT parseMessage)
{
    CWnd* control = pDX->PrepareCtrl(id);
    if (!control)
        return;
    if (!pDX->m_bSaveAndValidate) {
        control->SetWindowText(CString::FromNumber(value));
        return;
    }
    T parsed{};
    if (!ParseWhole(control->GetWindowText(), parsed))
        pDX->FailEntry(id, parseMessage, NumberRule{std::is_integral_v<T>});
    value = parsed;
}

} // namespace

CWnd* CDataExchange::PrepareCtrl(UINT id)
{
    m_idLastControl = id;
    CWnd* control = m_pDlgWnd->GetDlgItem(id);
    if (!control)
        kal::ReportAssertion("platform/DataExchange", __LINE__);
    return control;
}

void CDataExchange::Fail()
{
    throw CUserException();
}

void CDataExchange::FailEntry(UINT id, UINT messageId, const NumberRule& rule)
{
    m_idLastControl = id;
    const CWnd* control = m_pDlgWnd->GetDlgItem(id);
    AfxMessageBox(messageId, rule.Describe(control ? m_pDlgWnd->GetLabelText(*control) : CString()));
    Fail();
}

namespace {

// A bound as the user would type it: whole numbers in full, others in the
// shortest form.
std::u16string BoundText(double value, bool whole)
{
    if (whole && std::abs(value) < 1e18)
        return CString::FromUtf8(std::to_string(static_cast<long long>(value))).Str();
    return CString::FromNumber(value).Str();
}

} // namespace

CString NumberRule::Describe(const CString& label) const
{
    std::u16string text = whole ? u"a whole number" : u"a number";
    // Bounds at the ends of what a double holds stand for "any": the
    // smallest positive double for "above 0", the largest for "no limit".
    constexpr double kNoLimit = std::numeric_limits<double>::max();
    const bool aboveZero = min > 0 && min <= std::numeric_limits<double>::min();
    const bool noLower = min <= -kNoLimit;
    const bool noUpper = max >= kNoLimit;
    if (bounded && !(noLower && noUpper)) {
        const std::u16string lo = aboveZero ? u"0" : BoundText(min, whole);
        const std::u16string hi = BoundText(max, whole);
        const bool lowerOpen = minOpen || aboveZero;
        if (noUpper)
            text += (lowerOpen ? u" greater than " : u" of at least ") + lo;
        else if (noLower)
            text += (maxOpen ? u" less than " : u" of at most ") + hi;
        else if (!lowerOpen && !maxOpen)
            text += u" from " + lo + u" to " + hi;
        else
            text += (lowerOpen ? u" greater than " : u" of at least ") + lo +
                    (maxOpen ? u" and less than " : u" and at most ") + hi;
    }
    text += u'.';
    if (label.IsEmpty()) {
        text[0] = u'A';
        return CString(text);
    }
    return CString(label.Str() + u": " + text);
}

void DDX_Control(CDataExchange* pDX, UINT id, CWnd& control)
{
    if (control.IsCreated() && control.GetParent() == pDX->m_pDlgWnd && control.GetDlgCtrlID() == id)
        return;
    if (!pDX->PrepareCtrl(id))
        return;
    control.SubclassDlgItem(id, pDX->m_pDlgWnd);
}

void DDX_Check(CDataExchange* pDX, UINT id, int& value)
{
    auto* button = dynamic_cast<CButton*>(pDX->PrepareCtrl(id));
    if (!button)
        return;
    if (pDX->m_bSaveAndValidate)
        value = button->GetCheck();
    else
        button->SetCheck(value);
}

void DDX_Radio(CDataExchange* pDX, UINT firstId, int& index)
{
    CWnd* first = pDX->PrepareCtrl(firstId);
    if (!first)
        return;
    const auto group = pDX->m_pDlgWnd->GetRadioGroup(first);
    if (pDX->m_bSaveAndValidate) {
        index = -1;
        for (std::size_t i = 0; i < group.size(); ++i)
            if (group[i]->GetCheck())
                index = static_cast<int>(i);
        return;
    }
    for (std::size_t i = 0; i < group.size(); ++i)
        group[i]->SetCheck(static_cast<int>(i) == index ? BST_CHECKED : BST_UNCHECKED);
}

void DDX_CBIndex(CDataExchange* pDX, UINT id, int& index)
{
    auto* combo = dynamic_cast<CComboBox*>(pDX->PrepareCtrl(id));
    if (!combo)
        return;
    if (pDX->m_bSaveAndValidate)
        index = combo->GetCurSel();
    else
        combo->SetCurSel(index);
}

void DDX_Text(CDataExchange* pDX, UINT id, CString& value)
{
    CWnd* control = pDX->PrepareCtrl(id);
    if (!control)
        return;
    if (pDX->m_bSaveAndValidate)
        value = control->GetWindowText();
    else
        control->SetWindowText(value);
}

void DDX_Text(CDataExchange* pDX, UINT id, int& value)
{
    ExchangeNumber(pDX, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* pDX, UINT id, double& value)
{
    ExchangeNumber(pDX, id, value, AFX_IDP_PARSE_REAL);
}
