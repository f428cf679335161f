// Dialog data exchange: DoDataExchange binds controls to members with the
// DDX_ functions; UpdateData runs it one way or the other. A failed
// validation has told the user why and abandons the update (Fail).
#pragma once

#include "platform/Dialog.h"

#include <limits>

// What a number field takes. A message that refuses an entry names the
// field by its label and says this after it: "Confidence: a number from 0
// to 1".
struct NumberRule {
    bool whole = false;
    bool bounded = false;
    double min = 0;
    double max = 0;
    bool minOpen = false; // the bound itself is refused
    bool maxOpen = false;

    static NumberRule Between(double lo, double hi, bool whole = false) { return {whole, true, lo, hi, false, false}; }
    static NumberRule Positive() { return {false, true, 0, std::numeric_limits<double>::infinity(), true, false}; }
    // "Label: a whole number from 1 to 99." (no label: "A whole number ...").
    CString Describe(const CString& label) const;
};

class CDataExchange {
public:
    CDataExchange(CDialog* dialog, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(dialog) {}

    // The control `id` of the dialog; null, with an assertion report, when
    // the template has no such control.
    CWnd* PrepareCtrl(UINT id);
    [[noreturn]] void Fail();
    // Tells the user that control `id` refuses its entry (message
    // `messageId`, followed by the control's label and `rule`), leaves the
    // focus there and abandons the update.
    [[noreturn]] void FailEntry(UINT id, UINT messageId, const NumberRule& rule);

    BOOL m_bSaveAndValidate;
    CDialog* m_pDlgWnd;
    UINT m_idLastControl = 0;
};

// Subclasses the template's control `id` with `control` (first time only).
void DDX_Control(CDataExchange* pDX, UINT id, CWnd& control);
void DDX_Check(CDataExchange* pDX, UINT id, int& value);
// The index of the checked button of the group starting at `firstId` (-1
// for none).
void DDX_Radio(CDataExchange* pDX, UINT firstId, int& index);
void DDX_CBIndex(CDataExchange* pDX, UINT id, int& index);
void DDX_Text(CDataExchange* pDX, UINT id, CString& value);

// Message ids the platform reports when a number cannot be read.
inline constexpr UINT AFX_IDP_PARSE_INT = 2011;
inline constexpr UINT AFX_IDP_PARSE_REAL = 2010;
void DDX_Text(CDataExchange* pDX, UINT id, int& value);
void DDX_Text(CDataExchange* pDX, UINT id, double& value);
