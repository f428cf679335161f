// CArray: the framework's growable array, over std::vector. Indexes are int
// as in the framework; access out of range throws CInvalidArgException
// rather than corrupting memory.
//
// Room the array makes for elements that are about to be overwritten (a
// list of numbers read from an archive) is not filled with zeros first;
// SetSize still gives new elements their value.
#pragma once

#include "platform/CString.h"
#include "platform/Exceptions.h"
#include "platform/Object.h"

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace kal {

// An allocator whose default construction leaves numbers as they are.
template <class T, class Base = std::allocator<T>>
class DefaultInitAllocator : public Base {
public:
    template <class U>
    struct rebind {
        using other = DefaultInitAllocator<U, typename std::allocator_traits<Base>::template rebind_alloc<U>>;
    };
    using Base::Base;
    DefaultInitAllocator() = default;
    template <class U, class B>
    DefaultInitAllocator(const DefaultInitAllocator<U, B>& other) noexcept : Base(other)
    {
    }

    template <class U>
    void construct(U* p) noexcept(std::is_nothrow_default_constructible_v<U>)
    {
        ::new (static_cast<void*>(p)) U;
    }
    template <class U, class... Args>
    void construct(U* p, Args&&... args)
    {
        std::allocator_traits<Base>::construct(static_cast<Base&>(*this), p, std::forward<Args>(args)...);
    }
};

// Erases the elements of `items` whose mark is set (marks beyond the end
// count as unset), closing up in place in one pass; the number erased.
template <class Vector>
std::size_t EraseMarked(Vector& items, const std::vector<bool>& marked)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < items.size(); ++i)
        if (i >= marked.size() || !marked[i]) {
            if (kept != i)
                items[kept] = std::move(items[i]);
            ++kept;
        }
    const std::size_t erased = items.size() - kept;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(kept), items.end());
    return erased;
}

} // namespace kal

template <class T>
class CArray : public CObject {
public:
    using value_type = T;

    CArray() = default;
    CArray(const CArray&) = default;
    CArray(CArray&&) noexcept = default;
    CArray& operator=(const CArray&) = default;
    CArray& operator=(CArray&&) noexcept = default;
    CArray(std::initializer_list<T> items) : m_data(items) {}

    int GetSize() const { return static_cast<int>(m_data.size()); }
    int GetCount() const { return GetSize(); }
    int GetUpperBound() const { return GetSize() - 1; }
    bool IsEmpty() const { return m_data.empty(); }

    const T& GetAt(int index) const { return m_data[Checked(index)]; }
    T& ElementAt(int index) { return m_data[Checked(index)]; }
    const T& operator[](int index) const { return GetAt(index); }
    T& operator[](int index) { return ElementAt(index); }
    void SetAt(int index, const T& value) { m_data[Checked(index)] = value; }

    int Add(const T& value)
    {
        m_data.push_back(value);
        return GetUpperBound();
    }
    int Add(T&& value)
    {
        m_data.push_back(std::move(value));
        return GetUpperBound();
    }
    void InsertAt(int index, const T& value)
    {
        if (index < 0 || index > GetSize())
            throw CInvalidArgException();
        m_data.insert(m_data.begin() + index, value);
    }
    void RemoveAt(int index, int count = 1)
    {
        if (index < 0 || count < 0 || index + count > GetSize())
            throw CInvalidArgException();
        m_data.erase(m_data.begin() + index, m_data.begin() + index + count);
    }
    // Removes the elements whose mark is set (marks beyond the end count as
    // unset), closing up in place in one pass.
    void RemoveMarked(const std::vector<bool>& marked) { kal::EraseMarked(m_data, marked); }
    void RemoveAll() { m_data.clear(); }
    void SetSize(int size)
    {
        if (size < 0)
            throw CInvalidArgException();
        m_data.resize(static_cast<std::size_t>(size), T{});
    }
    void Copy(const CArray& other)
    {
        if (&other != this)
            m_data = other.m_data;
    }
    void Append(const CArray& other) { m_data.insert(m_data.end(), other.m_data.begin(), other.m_data.end()); }
    void Reserve(std::size_t capacity) { m_data.reserve(capacity); }

    auto begin() { return m_data.begin(); }
    auto end() { return m_data.end(); }
    auto begin() const { return m_data.begin(); }
    auto end() const { return m_data.end(); }

    friend bool operator==(const CArray& a, const CArray& b) { return a.m_data == b.m_data; }

    using Storage = std::vector<T, kal::DefaultInitAllocator<T>>;

protected:
    Storage& Items() { return m_data; }
    const Storage& Items() const { return m_data; }

private:
    std::size_t Checked(int index) const
    {
        if (index < 0 || index >= GetSize())
            throw CInvalidArgException();
        return static_cast<std::size_t>(index);
    }

    Storage m_data;
};

using CStringArray = CArray<CString>;
using CUIntArray = CArray<UINT>;
