// CTextIndex: where a text stands in a sequence of texts, found by hashing,
// for the lists of a dialog that hold 100,000 names. A flat table of item
// numbers with their hashes (open addressing, linear probing) over texts
// the owner keeps: no node per entry and no copy of any text. A probe
// reads an item's text only when the hashes agree. The first of equal
// texts is the one found.
//
// The index keeps no reference to the texts: every call is given `text`, a
// function from an item number to its text, and the owner rebuilds or
// extends the index whenever its texts change. An owner that keeps each
// item's Hash beside it passes `hash` as well, and building the index then
// reads no text at all.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

class CTextIndex {
public:
    // A hash of `text`, inline: names are short and hashed by the million.
    static constexpr std::uint32_t Hash(std::u16string_view text)
    {
        std::uint64_t h = 0x9E3779B97F4A7C15ull ^ text.size();
        const char16_t* p = text.data();
        std::size_t left = text.size();
        for (; left >= 4; left -= 4, p += 4) {
            std::uint64_t word;
            std::memcpy(&word, p, sizeof word);
            h = (h ^ word) * 0xFF51AFD7ED558CCDull;
            h ^= h >> 32;
        }
        for (; left > 0; --left, ++p)
            h = (h ^ *p) * 0xC4CEB9FE1A85EC53ull;
        h ^= h >> 29;
        h *= 0xFF51AFD7ED558CCDull;
        return static_cast<std::uint32_t>(h ^ (h >> 32));
    }

    void Clear()
    {
        m_slots.clear();
        m_count = 0;
    }
    bool IsBuilt() const { return !m_slots.empty(); }

    // Indexes items 0..count-1 and answers how many distinct texts they
    // hold.
    template <class TextOf, class HashOf>
    int Build(int count, const TextOf& text, const HashOf& hash)
    {
        const std::size_t items = static_cast<std::size_t>(count > 0 ? count : 0);
        // At most half full, so that probes stay short.
        m_slots.assign(std::bit_ceil(items * 2 + 2), Slot{});
        m_count = 0;
        if (m_slots.size() <= kCachedSlots) {
            for (int i = 0; i < count; ++i)
                Insert(i, hash(i), text);
        } else {
            InsertByRegion(items, text, hash);
        }
        return m_count;
    }
    template <class TextOf>
    int Build(int count, const TextOf& text)
    {
        return Build(count, text, [&text](int i) { return Hash(text(i)); });
    }
    // Adds item `item` (the next one after those indexed); false when the
    // table would grow too full, in which case the caller rebuilds.
    template <class TextOf>
    bool Add(int item, std::uint32_t hash, const TextOf& text)
    {
        if (!IsBuilt() || static_cast<std::size_t>(m_count + 1) * 2 > m_slots.size())
            return false;
        Insert(item, hash, text);
        return true;
    }
    // The first item whose text is `wanted`, or -1.
    template <class TextOf>
    int Find(std::u16string_view wanted, std::uint32_t hash, const TextOf& text) const
    {
        return IsBuilt() ? m_slots[Probe(wanted, hash, text)].item - 1 : -1;
    }
    template <class TextOf>
    int Find(std::u16string_view wanted, const TextOf& text) const
    {
        return Find(wanted, Hash(wanted), text);
    }
    // The first item with hash `hash` that `same` accepts, or -1: for a
    // caller whose wanted text is costly to reach.
    template <class Same>
    int FindIf(std::uint32_t hash, const Same& same) const
    {
        return IsBuilt() ? m_slots[Probe(hash, same)].item - 1 : -1;
    }

private:
    struct Slot {
        std::int32_t item = 0; // item + 1; 0 is an empty slot
        std::uint32_t hash = 0;
    };

    // The slot holding a text equal to the one `same` recognises, or the
    // empty slot where it would go; texts are compared only where the
    // hashes agree.
    template <class Same>
    std::size_t Probe(std::uint32_t hash, const Same& same) const
    {
        const std::size_t mask = m_slots.size() - 1;
        for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
            const Slot& entry = m_slots[slot];
            if (entry.item == 0 || (entry.hash == hash && same(entry.item - 1)))
                return slot;
        }
    }
    template <class TextOf>
    std::size_t Probe(std::u16string_view wanted, std::uint32_t hash, const TextOf& text) const
    {
        return Probe(hash, [&](int other) { return text(other) == wanted; });
    }
    // A table larger than the processor's caches, filled in item order,
    // waits on memory at nearly every insertion: a million names jump about
    // a table of 16 MB. So the items are first put in the order of the
    // region of the table their hashes lead to (a counting sort, in
    // straight passes), and inserting them then walks the table from end to
    // end. The sort is stable and equal texts hash alike, so the first of
    // equal texts is still the one inserted first; nothing else about
    // probing depends on the order of insertion.
    static constexpr std::size_t kCachedSlots = std::size_t{1} << 16; // 512 KB: filled in item order
    static constexpr int kRegionBits = 12;                            // 32 KB of slots a region
    template <class TextOf, class HashOf>
    void InsertByRegion(std::size_t items, const TextOf& text, const HashOf& hash)
    {
        const std::size_t mask = m_slots.size() - 1;
        const auto regionOf = [mask](std::uint32_t h) { return (h & mask) >> kRegionBits; };
        std::vector<std::uint32_t> hashes(items);
        std::vector<std::size_t> regionStart((m_slots.size() >> kRegionBits) + 1, 0);
        for (std::size_t i = 0; i < items; ++i) {
            hashes[i] = hash(static_cast<int>(i));
            ++regionStart[regionOf(hashes[i]) + 1];
        }
        for (std::size_t r = 1; r < regionStart.size(); ++r)
            regionStart[r] += regionStart[r - 1];
        std::vector<Slot> byRegion(items);
        for (std::size_t i = 0; i < items; ++i)
            byRegion[regionStart[regionOf(hashes[i])]++] = Slot{static_cast<std::int32_t>(i + 1), hashes[i]};
        for (const Slot& pending : byRegion)
            Insert(pending.item - 1, pending.hash, text);
    }
    template <class TextOf>
    void Insert(int item, std::uint32_t hash, const TextOf& text)
    {
        Slot& slot = m_slots[Probe(hash, [&](int other) { return text(other) == text(item); })];
        if (slot.item == 0) {
            slot = Slot{item + 1, hash};
            ++m_count;
        }
    }

    std::vector<Slot> m_slots;
    int m_count = 0;
};
