// CArray: the framework's growable array, over a std::vector shared by its
// copies until one of them changes. Indexes are int as in the framework;
// access out of range throws CInvalidArgException rather than corrupting
// memory.
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
    using Storage = std::vector<T, kal::DefaultInitAllocator<T>>;

    // Copies share their elements until one of them changes (the change
    // copies them first): a list of a million variables passes between a
    // settings object, its dialog's list control and back at the cost of a
    // count.
    CArray() = default;
    CArray(const CArray&) = default;
    CArray(CArray&&) noexcept = default;
    CArray& operator=(const CArray&) = default;
    CArray& operator=(CArray&&) noexcept = default;
    CArray(std::initializer_list<T> items) : m_data(std::make_shared<Storage>(items)) {}

    int GetSize() const { return static_cast<int>(Data().size()); }
    int GetCount() const { return GetSize(); }
    int GetUpperBound() const { return GetSize() - 1; }
    bool IsEmpty() const { return Data().empty(); }

    const T& GetAt(int index) const { return Data()[Checked(index)]; }
    T& ElementAt(int index)
    {
        const std::size_t at = Checked(index);
        return Own()[at];
    }
    const T& operator[](int index) const { return GetAt(index); }
    T& operator[](int index) { return ElementAt(index); }
    void SetAt(int index, const T& value) { ElementAt(index) = value; }

    int Add(const T& value)
    {
        Own().push_back(value);
        return GetUpperBound();
    }
    int Add(T&& value)
    {
        Own().push_back(std::move(value));
        return GetUpperBound();
    }
    void InsertAt(int index, const T& value)
    {
        if (index < 0 || index > GetSize())
            throw CInvalidArgException();
        Storage& items = Own();
        items.insert(items.begin() + index, value);
    }
    void RemoveAt(int index, int count = 1)
    {
        if (index < 0 || count < 0 || index + count > GetSize())
            throw CInvalidArgException();
        Storage& items = Own();
        items.erase(items.begin() + index, items.begin() + index + count);
    }
    // Removes the elements whose mark is set (marks beyond the end count as
    // unset), closing up in place in one pass.
    void RemoveMarked(const std::vector<bool>& marked) { kal::EraseMarked(Own(), marked); }
    void RemoveAll() { m_data.reset(); }
    void SetSize(int size)
    {
        if (size < 0)
            throw CInvalidArgException();
        Own().resize(static_cast<std::size_t>(size), T{});
    }
    void Copy(const CArray& other) { m_data = other.m_data; }
    void Append(const CArray& other)
    {
        const std::shared_ptr<Storage> added = other.m_data; // stays whole if `other` is this array
        if (!added)
            return;
        Storage& items = Own();
        items.insert(items.end(), added->begin(), added->end());
    }
    void Reserve(std::size_t capacity) { Own().reserve(capacity); }

    // Iterating a non-const array may change it: it takes its own elements
    // first. Read through a const array to share them on.
    auto begin() { return Own().begin(); }
    auto end() { return Own().end(); }
    auto begin() const { return Data().begin(); }
    auto end() const { return Data().end(); }

    friend bool operator==(const CArray& a, const CArray& b) { return a.m_data == b.m_data || a.Data() == b.Data(); }

    // Whether this array and `other` share their elements (no copy was made).
    bool SharesElementsWith(const CArray& other) const { return m_data && m_data == other.m_data; }

protected:
    Storage& Items() { return Own(); }
    const Storage& Items() const { return Data(); }

private:
    std::size_t Checked(int index) const
    {
        if (index < 0 || index >= GetSize())
            throw CInvalidArgException();
        return static_cast<std::size_t>(index);
    }
    const Storage& Data() const { return m_data ? *m_data : Empty(); }
    static const Storage& Empty()
    {
        static const Storage empty;
        return empty;
    }
    // The elements to change: this array's own, copied first when shared.
    // Inline for the common case of elements of its own, as an array is
    // filled an element at a time.
    Storage& Own()
    {
        if (m_data && m_data.use_count() == 1) [[likely]]
            return *m_data;
        return Detach();
    }
    [[gnu::noinline]] Storage& Detach()
    {
        m_data = m_data ? std::make_shared<Storage>(*m_data) : std::make_shared<Storage>();
        return *m_data;
    }

    std::shared_ptr<Storage> m_data; // null: no elements
};

using CStringArray = CArray<CString>;
using CUIntArray = CArray<UINT>;
