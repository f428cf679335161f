// CGUIBaseObj: the base of every settings object.
//
// The base keeps the links of the running session (parent settings,
// document, dialog id, window state, row count, owner caption id); none of
// them is a user choice, so Serialize writes nothing and copies do not carry
// them: the copy constructor makes a fresh base and assignment leaves the
// base alone. Derived settings classes can therefore default their own copy
// operations and still get the framework's copy semantics.
//
// The building services turn settings into command text by the rules every
// analysis shares (see AddVariables, AddEditValueCmd, AddSaveCmd).
#pragma once

#include "framework/CmdInfo.h"
#include "framework/GUIArray.h"
#include "framework/GUIData.h"
#include "framework/HostLink.h"
#include "platform/Collections.h"
#include "platform/Object.h"

class CDocument;
class IGrHitNodeInfo;

enum LISTARRAYSELECTIONTYPE : int {
    LIST_ALL_ELEMENTS = 0,
    LIST_SELECTED_ELEMENTS = 1,
};

class CGUIBaseObj : public CObject {
    DECLARE_DYNAMIC(CGUIBaseObj)
public:
    CGUIBaseObj() = default;
    CGUIBaseObj(const CGUIBaseObj&) : CGUIBaseObj() {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing to assign
    CGUIBaseObj& operator=(const CGUIBaseObj&) { return *this; }
    ~CGUIBaseObj() override = default;

    // Virtual operations, in slot order after CObject's.
    void Serialize(CArchive& ar) override;
    virtual void SetAll(IGrHitNodeInfo* node);
    virtual void SetDocument(CDocument* document);
    virtual void GetCommandInfoList(CLIST<CCmdInfo>& list) const;
    virtual CString GetCommandString() const;
    // Brings `target` up to date with `source`: keeps, in its own order, the
    // entries whose names are in `source`; with bAdd also appends the
    // entries of `source` it lacks, in `source` order. Linear in both sizes.
    virtual void UpdateCtrlList(CGUIArray<CGUIDataVariable>* target, const CGUIArray<CGUIDataVariable>* source,
                                int bAdd);
    // The same with a source that is given away: an empty target takes its
    // entries instead of copies (a million variables' names are then not
    // counted up once and down again).
    void UpdateCtrlList(CGUIArray<CGUIDataVariable>* target, CGUIArray<CGUIDataVariable>&& source, int bAdd);
    virtual void FillListSource();
    virtual void SetEditAttribute();
    virtual void GetParent(CGUIBaseObj*& parent) const;
    virtual void SetParent(CGUIBaseObj* parent);
    // Puts defaults that depend on the session back in place before the
    // dialog opens; the user's choices are kept.
    virtual void ReassignDefaultValue();
    virtual void AddRemCommand();

    // Session links.
    void SetstrDialog(unsigned int dialogId);
    unsigned int GetDialogID() const { return m_nDialogID; }
    const CString& GetstrDialog() const { return m_strDialog; }
    int GetWindowState() const { return m_nWindowState; }
    void SetWindowState(int state) { m_nWindowState = state; }
    int GetRowCount() const { return m_nRowCount; }
    void SetRowCount(int rows) { m_nRowCount = rows; }
    // The caption id the page of these settings was given; pages shared by
    // several analyses read it to know whom they serve.
    unsigned int GetOwnerID() const { return m_nOwnerID; }
    void SetOwnerID(unsigned int id) { m_nOwnerID = id; }
    CDocument* GetDocument() const { return m_pDocument; }

    // List and text services.
    static int IsNumeric(const CString& text);
    static int CheckStringPresentinListCtrlArray(const CGUIArray<CGUIDataVariable>& list, const CString& name);
    // 1 when both lists hold the same names in the same order.
    static int CompareTwoListCtrlArrays(const CGUIArray<CGUIDataVariable>& a, const CGUIArray<CGUIDataVariable>& b);
    static void GetListCtrlArrayElements(const CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& out,
                                         LISTARRAYSELECTIONTYPE which, int bAppend);
    // The distinct variable names of a model expression, in order of first
    // use ("A + B*A + 'x y'" gives A, B, x y).
    static void GetUniqueArrFromExpn(const CString& expression, CStringArray& names);
    static void ReplaceEndChar(CString& text, char16_t oldChar, char16_t newChar);
    // A matrix typed over several lines as one line, rows joined by ";".
    static CString GetSingleLineMatrixString(const CString& text);

    // Command building.
    void AddModuleCmd(unsigned int id, CLIST<CCmdInfo>& list) const;
    CString GetModuleCommand(unsigned int id) const;
    // Appends the names of `list` joined by `separator`. Entries without a
    // name (lists loaded from a plain archive) are skipped; a name holding a
    // control character is left out with an assertion report.
    void AddVariables(CString& line, const CGUIArray<CGUIDataVariable>& list, const CString& separator) const;
    CString GetMixedDataVariable(const CGUIArray<CGUIDataVariable>& list, const CString& joiner) const;

    CString AddOnConditionCmd(const CString& text, int condition) const { return condition ? text : CString(); }
    CString AddOnConditionCmd(const CString& text, const CGUIDataWnd<int>& check) const
    {
        return check.m_Value ? text : CString();
    }
    template <class T>
    CString AddOnConditionCmd(const CGUIData<T>& value, int condition) const
    {
        return condition ? NumberText(value.m_Value) : CString();
    }

    // The changed-value rule: a clause tied to `value` is written when the
    // value no longer holds its default (state flag 0), or when the host asks
    // for every option and the value's first flag is 0.
    template <class T>
    int IsToBeWritten(const CGUIData<T>& value) const
    {
        return value.IsToBeWritten(kal::framework::WriteEveryOption()) ? 1 : 0;
    }
    // The state query of a holder: its state flag, read as 0 while the host
    // asks for every option and the first flag is 0; the opposite of
    // IsToBeWritten.
    template <class T>
    int GetValueState(const CGUIData<T>& value) const
    {
        return IsToBeWritten(value) ? 0 : 1;
    }
    // Keyword and value under the changed-value rule.
    template <class T>
    CString AddChangedValueCmd(const CString& keyword, const CGUIData<T>& value) const
    {
        const int write = IsToBeWritten(value);
        return AddOnConditionCmd(keyword, write) + AddOnConditionCmd(value, write);
    }

    // Keyword and value, whenever bCondition is set.
    template <class T>
    CString AddEditValueCmd(const CGUIData<T>& value, const CString& keyword, int bCondition) const
    {
        return bCondition ? keyword + NumberText(value.m_Value) : CString();
    }
    // Keyword and value when the value differs from the default's value,
    // when bForce is set, or when the host asks for every option; else empty.
    template <class T>
    CString AddEditValueCmd(const CGUIData<T>& value, const CGUIData<T>& defaultValue, int bForce,
                            const CString& keyword, int bCondition) const
    {
        return AddEditValueCmd(value.m_Value, defaultValue.m_Value, bForce, keyword, bCondition);
    }
    CString AddEditValueCmd(int value, int defaultValue, int bForce, const CString& keyword, int bCondition) const;
    CString AddEditValueCmd(double value, double defaultValue, int bForce, const CString& keyword,
                            int bCondition) const;
    CString AddEditValueCmd(const CString& value, const CString& defaultValue, int bForce, const CString& keyword,
                            int bCondition) const;
    template <class T>
    CString AppendEditValueCmd(const CGUIData<T>& value, const CString& text) const
    {
        return text + NumberText(value.m_Value);
    }
    CString AppendLimits(const CGUIData<double>& lower, const CGUIData<double>& upper, const CString& keyword,
                         int bCondition) const;
    void AddStringCmd(const CString& text, CLIST<CCmdInfo>& list, const CString& prefix, const CString& suffix,
                      int bAppend) const;
    // SAVE '<file>' [/ option] [option2]; quotes in the name are doubled. A
    // name holding a control character writes no line.
    void AddSaveCmd(const CString& fileName, CLIST<CCmdInfo>& list, const CString& option,
                    const CString& option2) const;

    // A number as command text: decimal integers, doubles in the shortest
    // six-digit %g form with the host's decimal separator.
    static CString NumberText(int value) { return CString::FromNumber(value); }
    static CString NumberText(unsigned int value) { return CString::FromNumber(value); }
    static CString NumberText(double value) { return CString::FromNumber(value, kal::framework::DecimalSeparator()); }
    // What stands between the two bounds of a limits clause: a comma, or a
    // semicolon where the comma is the decimal separator (0,001;0,999).
    static CString LimitsSeparator() { return kal::framework::DecimalSeparator() == u',' ? u";" : u","; }
    // A variable name as command text: plain identifiers as they are, any
    // other name in single quotes with inner quotes doubled.
    static CString QuoteName(const CString& name);
    static bool IsPlainIdentifier(const CString& name);

private:
    CGUIBaseObj* m_pParent = nullptr;
    CDocument* m_pDocument = nullptr;
    CString m_strDialog;
    unsigned int m_nDialogID = 0;
    int m_nWindowState = 1;
    int m_nRowCount = 0;
    unsigned int m_nOwnerID = 0;
};
