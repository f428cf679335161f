// The command list: the lines a settings object writes, in the order the
// host is to run them.
#pragma once

#include "platform/CString.h"
#include "platform/Exceptions.h"

#include <utility>
#include <vector>

class CCmdInfo {
public:
    CCmdInfo() = default;
    explicit CCmdInfo(CString text, int kind = 0) : m_strCommand(std::move(text)), m_nKind(kind) {}
    CCmdInfo(const CCmdInfo&) = default;
    CCmdInfo(CCmdInfo&&) noexcept = default;
    CCmdInfo& operator=(const CCmdInfo&) = default;
    CCmdInfo& operator=(CCmdInfo&&) noexcept = default;
    virtual ~CCmdInfo() = default;

    CString m_strCommand;
    int m_nKind = 0; // 0 for every line a settings object writes
};

// An ordered list with index access; index -1 names the last element in the
// utilities that take an index.
template <class T>
class CLIST {
public:
    int GetCount() const { return static_cast<int>(m_items.size()); }
    bool IsEmpty() const { return m_items.empty(); }
    void AddTail(const T& item) { m_items.push_back(item); }
    void AddTail(T&& item) { m_items.push_back(std::move(item)); }
    void InsertAt(int index, const T& item)
    {
        if (index < 0 || index > GetCount())
            throw CInvalidArgException();
        m_items.insert(m_items.begin() + index, item);
    }
    void RemoveAt(int index) { m_items.erase(m_items.begin() + Checked(index)); }
    void RemoveAll() { m_items.clear(); }
    T& GetAt(int index) { return m_items[Checked(index)]; }
    const T& GetAt(int index) const { return m_items[Checked(index)]; }
    T& GetTail() { return GetAt(GetCount() - 1); }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::size_t Checked(int index) const
    {
        if (index < 0 || index >= GetCount())
            throw CInvalidArgException();
        return static_cast<std::size_t>(index);
    }

    std::vector<T> m_items;
};

using CCommandList = CLIST<CCmdInfo>;

// Appends `text` as a new line unless it is empty. A text holding a control
// character is refused with an assertion report: no input may ever split a
// command into two lines. A line passed with std::move goes into the list
// as it is.
void AppendCommandLine(CLIST<CCmdInfo>& list, CString text);
