// CDDXVDlg: dialog data exchange and validation for the framework's value
// holders and controls. A failed validation shows its message through the
// host and abandons the update.
#pragma once

#include "framework/GUIArray.h"
#include "framework/GUIData.h"
#include "platform/DataExchange.h"

class CFileEditCtrl;

class CDDXVDlg : public CDialog {
    DECLARE_DYNAMIC(CDDXVDlg)
public:
    static constexpr UINT kMsgOutOfRange = 2012;

    using CDialog::CDialog;

    // An edited number. Loading shows the value; storing reads it (message
    // `messageId` when it is not a number of the holder's type, 2012 when it
    // is one too large for it) and sets m_nState: 1 when the value equals
    // m_DefaultValue, else 0. The message says what the field takes: `rule`,
    // or without one a number of the holder's type.
    static void DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<int>& value, UINT messageId,
                           const NumberRule* rule = nullptr);
    // Reads an edited number with no message: false, and `value` as it was,
    // when the control's text is not a number of the holder's type.
    static bool ReadKVText(const CWnd& control, CGUIData<int>& value);
    static bool ReadKVText(const CWnd& control, CGUIData<unsigned int>& value);
    static bool ReadKVText(const CWnd& control, CGUIData<double>& value);
    // Reads a number typed outside an edit (a grid cell) by the same
    // grammar; false, and `value` as it was, when it is none.
    static bool ReadNumberText(const CString& text, double& value);
    static void DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<unsigned int>& value, UINT messageId,
                           const NumberRule* rule = nullptr);
    static void DDX_KVText(CDataExchange* pDX, UINT id, CGUIData<double>& value, UINT messageId,
                           const NumberRule* rule = nullptr);
    // A check box and its enable state.
    static void DDX_CheckState(CDataExchange* pDX, UINT id, CGUIDataWnd<int>& value);
    // When storing: `value` must lie within [min, max] (message `messageId`);
    // bMinOpen / bMaxOpen exclude the bound itself.
    static void DDV_MinMaxDouble(CDataExchange* pDX, const CGUIData<double>& value, const CGUIData<double>& min,
                                 const CGUIData<double>& max, UINT messageId, int bMinOpen, int bMaxOpen);
    static void DDV_MinMaxInt(CDataExchange* pDX, const CGUIData<int>& value, int min, int max, UINT messageId);

    // A text: nMaxChars (0: any length), bNotEmpty (message `messageId` when
    // empty), bTrim (blanks at both ends removed when storing).
    static void DDX_Text(CDataExchange* pDX, UINT id, CString& value, int nMaxChars, int bNotEmpty, int bTrim,
                         UINT messageId);
    // A variable list control and its list: nTypeFilter 0 shows every
    // variable (else only that type); bKeepSelection carries the selection
    // flags both ways; bSort shows the list sorted by name.
    static void DDX_ListCtrlArray(CDataExchange* pDX, UINT id, CGUIArray<CGUIDataVariable>& list, UINT nTypeFilter,
                                  int bKeepSelection, int bSort);
    // When storing, warns with `messageId` unless it is 0 (valid).
    static void DDX_ControlWarn(CDataExchange* pDX, UINT id, UINT messageId);
    // The same for a number: the message says what the field takes.
    static void DDX_ControlWarn(CDataExchange* pDX, UINT id, UINT messageId, const NumberRule& rule);
    // The file edit control `control` on `id` with its file name and the
    // options of its file dialog.
    static void DDX_FileEditCtrl(CDataExchange* pDX, UINT id, CFileEditCtrl& control, CString& fileName,
                                 int bSaveDialog, int bPromptOverwrite, int bMustExist, const CString& defaultExtension,
                                 const CString& filter, int nFlags);

private:
    template <class T>
    static void ExchangeNumber(CDataExchange* pDX, UINT id, CGUIData<T>& value, UINT messageId, const NumberRule* rule);
    template <class T>
    static bool ReadNumber(const CWnd& control, CGUIData<T>& value);
};
