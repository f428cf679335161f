#include "framework/GUIListCtrl.h"

IMPLEMENT_DYNAMIC(CGUIListCtrl, CListCtrl)

void CGUIListCtrl::SetVariables(const CGUIArray<CGUIDataVariable>& variables, bool bKeepSelection)
{
    const int previous = m_nListState;
    m_nListState = stateFilling;
    m_variables = variables;
    SetItems(
        static_cast<std::size_t>(variables.GetSize()),
        [&variables](std::size_t i) { return variables[static_cast<int>(i)].GetVariableName(); },
        [&variables](std::size_t i) { return variables[static_cast<int>(i)].GetNameHash(); });
    if (bKeepSelection) {
        std::vector<int> selected;
        for (int i = 0; i < variables.GetSize(); ++i)
            if (variables[i].IsSelected())
                selected.push_back(i);
        if (!selected.empty())
            SetSelection(selected);
    }
    m_nListState = previous == stateFilling ? stateIdle : previous;
}

CGUIArray<CGUIDataVariable> CGUIListCtrl::GetVariables() const
{
    // Shared with the list the control was given, unless a selection flag
    // changed.
    CGUIArray<CGUIDataVariable> result = m_variables;
    for (int i = 0; i < result.GetSize(); ++i) {
        const int selected = IsItemSelected(i) ? 1 : 0;
        if (result.GetAt(i).IsSelected() != selected)
            result[i].SetSelected(selected);
    }
    return result;
}

std::vector<int> CGUIListCtrl::AddVariables(const std::vector<CGUIDataVariable>& variables, bool bUnique)
{
    std::vector<int> added;
    for (const auto& v : variables) {
        if (bUnique && ContainsVariable(v.GetVariableName()))
            continue;
        const int at = m_variables.Add(v);
        m_variables[at].SetSelected(0);
        InsertItem(at, v.GetVariableName());
        added.push_back(at);
    }
    return added;
}

void CGUIListCtrl::RemoveVariables(const std::vector<int>& indexes)
{
    if (indexes.empty())
        return;
    // The variables and the items close up in place, in one pass each; the
    // items keep their selection flags.
    std::vector<bool> drop(static_cast<std::size_t>(m_variables.GetSize()), false);
    for (const int i : indexes)
        if (i >= 0 && i < m_variables.GetSize())
            drop[static_cast<std::size_t>(i)] = true;
    m_variables.RemoveMarked(drop);
    DeleteItems(drop);
}

std::vector<CGUIDataVariable> CGUIListCtrl::GetSelectedVariables() const
{
    std::vector<CGUIDataVariable> selected;
    for (const int i : GetSelectedItems())
        selected.push_back(m_variables[i]);
    return selected;
}

bool CGUIListCtrl::IsSelectetVariableTypePresent(const CGUIListCtrl* list, int type)
{
    if (!list)
        return false;
    for (const int i : list->GetSelectedItems())
        if (static_cast<int>(list->m_variables[i].GetVariableType()) == type)
            return true;
    return false;
}

void CGUIListCtrl::ResetOptions()
{
    SetSelection({});
    m_nListState = stateIdle;
}
