// CGUIListCtrl: a list of data-sheet variables. It shows the variables'
// names and keeps the variables themselves, its role (the source list or a
// target list), a busy state, and the context-menu entries of a source list.
#pragma once

#include "framework/GUIArray.h"
#include "platform/Collections.h"
#include "platform/Wnd.h"

struct CMenuIdStr {
    CString caption;
    UINT id = 0;
};

class CGUIListCtrl : public CListCtrl {
    DECLARE_DYNAMIC(CGUIListCtrl)
public:
    // The list state: 0 idle; 1 being filled; 2 locked by its dialog. A list
    // in state 1 or 2 is busy and gives no variables away.
    enum ListState { stateIdle = 0, stateFilling = 1, stateLocked = 2 };

    explicit CGUIListCtrl(bool isSource = false) : m_bSource(isSource) {}

    bool IsSourceList() const { return m_bSource; }
    int GetListState() const { return m_nListState; }
    void SetListState(int state) { m_nListState = state; }
    bool IsBusy() const { return m_nListState == stateFilling || m_nListState == stateLocked; }

    // Replaces the items with `variables`; their selection flags become the
    // selection when bKeepSelection is set.
    void SetVariables(const CGUIArray<CGUIDataVariable>& variables, bool bKeepSelection = true);
    // The variables in list order, each with its current selection flag.
    CGUIArray<CGUIDataVariable> GetVariables() const;
    const CGUIDataVariable& GetVariable(int index) const { return m_variables[index]; }
    // An item's text is its variable's name: the list's own index finds it.
    int FindVariable(const CString& name) const { return FindItem(name); }
    bool ContainsVariable(const CString& name) const { return FindVariable(name) >= 0; }

    // Appends variables, skipping names already listed when bUnique is set;
    // returns the indexes of the appended items.
    std::vector<int> AddVariables(const std::vector<CGUIDataVariable>& variables, bool bUnique);
    // Removes the given items (indexes in ascending order).
    void RemoveVariables(const std::vector<int>& indexes);
    std::vector<CGUIDataVariable> GetSelectedVariables() const;

    // Whether any selected variable of `list` has variable type `type`.
    static bool IsSelectetVariableTypePresent(const CGUIListCtrl* list, int type);

    void SetMenuIDArray(const CArray<CMenuIdStr>& entries) { m_menu = entries; }
    const CArray<CMenuIdStr>& GetMenuIDArray() const { return m_menu; }

    // Clears the selection and the busy state.
    void ResetOptions();

private:
    bool m_bSource;
    int m_nListState = stateIdle;
    CGUIArray<CGUIDataVariable> m_variables;
    CArray<CMenuIdStr> m_menu;
};
