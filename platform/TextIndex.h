// CTextIndex: where a text stands in a sequence of texts, found by hashing,
// for the lists of a dialog that hold 100,000 names. A flat table of item
// numbers (open addressing, linear probing) over texts the owner keeps: no
// node per entry and no copy of any text. The first of equal texts is the
// one found.
//
// The index keeps no reference to the texts: every call is given `text`, a
// function from an item number to its text, and the owner rebuilds or
// extends the index whenever its texts change.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

class CTextIndex {
public:
    void Clear()
    {
        m_slots.clear();
        m_count = 0;
    }
    bool IsBuilt() const { return !m_slots.empty(); }

    // Indexes items 0..count-1.
    template <class TextOf>
    void Build(int count, const TextOf& text)
    {
        // At most half full, so that probes stay short.
        m_slots.assign(std::bit_ceil(static_cast<std::size_t>(count > 0 ? count : 0) * 2 + 2), 0);
        m_count = 0;
        for (int i = 0; i < count; ++i)
            Insert(i, text);
    }
    // Adds item `item` (the next one after those indexed); false when the
    // table would grow too full, in which case the caller rebuilds.
    template <class TextOf>
    bool Add(int item, const TextOf& text)
    {
        if (!IsBuilt() || static_cast<std::size_t>(m_count + 1) * 2 > m_slots.size())
            return false;
        Insert(item, text);
        return true;
    }
    // The first item whose text is `wanted`, or -1.
    template <class TextOf>
    int Find(std::u16string_view wanted, const TextOf& text) const
    {
        return IsBuilt() ? m_slots[Probe(wanted, text)] - 1 : -1;
    }

private:
    // The slot holding `wanted`, or the empty slot where it would go.
    template <class TextOf>
    std::size_t Probe(std::u16string_view wanted, const TextOf& text) const
    {
        const std::size_t mask = m_slots.size() - 1;
        for (std::size_t slot = std::hash<std::u16string_view>{}(wanted) & mask;; slot = (slot + 1) & mask) {
            const std::int32_t entry = m_slots[slot];
            if (entry == 0 || text(entry - 1) == wanted)
                return slot;
        }
    }
    template <class TextOf>
    void Insert(int item, const TextOf& text)
    {
        const std::size_t slot = Probe(text(item), text);
        if (m_slots[slot] == 0) {
            m_slots[slot] = item + 1;
            ++m_count;
        }
    }

    std::vector<std::int32_t> m_slots; // item + 1; 0 is an empty slot
    int m_count = 0;
};
