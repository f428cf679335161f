// CGUIDataVariable: one variable of the open data sheet as it appears in a
// variable list.
//
// Lists of 100,000 variables are copied between settings, dialogs and list
// controls, so a variable is small (32 bytes) and cheap to copy. Its name
// and label take one word: most variables have no label, and the word is
// then the name itself, a CString sharing the sheet's buffer; a labelled
// variable points instead to a counted record of both. Either way a copy
// only counts. The counts are not atomic: lists live on the user-interface
// thread.
//
// A variable also keeps its name's hash, taken when the name is set (and
// in cache): a list of a million variables is indexed, and its names shown
// in a list control, without reading each name again.
#pragma once

#include "host/IData.h"
#include "platform/CString.h"
#include "platform/Object.h"
#include "platform/TextIndex.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

template <class T>
class CGUIArray;

class CGUIDataVariable final : public CObject {
    DECLARE_SERIAL(CGUIDataVariable)
public:
    CGUIDataVariable() = default;
    // name, type, the variable's column in the data sheet, a label, and the
    // selection flag of the entry in its list.
    CGUIDataVariable(const CString& name, NmsEnum::VARIABLETYPE type, int column = 0, const CString& label = {},
                     int selected = 0)
        : m_nType(type), m_nColumn(column), m_nSelected(selected)
    {
        SetTexts(name, label);
    }
    CGUIDataVariable(const CGUIDataVariable&) = default;
    CGUIDataVariable(CGUIDataVariable&&) noexcept = default;
    CGUIDataVariable& operator=(const CGUIDataVariable&) = default;
    CGUIDataVariable& operator=(CGUIDataVariable&&) noexcept = default;
    ~CGUIDataVariable() override = default;

    // Two entries are the same variable when name and type agree; where an
    // entry sits or whether it is selected does not matter.
    friend bool operator==(const CGUIDataVariable& a, const CGUIDataVariable& b)
    {
        return a.GetVariableName() == b.GetVariableName() && a.m_nType == b.m_nType;
    }

    void GetVariableName(CString& name) const { name = GetVariableName(); }
    const CString& GetVariableName() const { return m_texts.Name(); }
    void SetVariableName(const CString& name) { SetTexts(name, GetLabel()); }
    // CTextIndex::Hash of the name.
    std::uint32_t GetNameHash() const { return m_nNameHash; }
    NmsEnum::VARIABLETYPE GetVariableType() const { return m_nType; }
    void SetVariableType(NmsEnum::VARIABLETYPE type) { m_nType = type; }
    int GetColumn() const { return m_nColumn; }
    const CString& GetLabel() const { return m_texts.Label(); }
    int IsSelected() const { return m_nSelected; }
    // Asks the processor for the name's buffer ahead of its use: a pass over
    // a long list reads each name behind a pointer of its own.
    void PrefetchName() const { m_texts.Prefetch(); }
    void SetSelected(int selected) { m_nSelected = selected; }

    // Appends this variable to `list`.
    void GetDataVariableList(CGUIArray<CGUIDataVariable>& list) const;

    // One element in the archive's list layout (see CGUIArray).
    void Serialize(CArchive& ar) override;

    // The 24-byte image of the plain list layout: zero (table slot), zero
    // (name slot), type, column, zero (label slot), selection flag.
    static constexpr std::size_t kBlockSize = 24;
    // Field by field straight into place: lists of a million entries go
    // through here.
    void ToBlock(unsigned char* block) const
    {
        const int zero = 0;
        const int type = static_cast<int>(m_nType);
        std::memcpy(block, &zero, 4);
        std::memcpy(block + 4, &zero, 4);
        std::memcpy(block + 8, &type, 4);
        std::memcpy(block + 12, &m_nColumn, 4);
        std::memcpy(block + 16, &zero, 4);
        std::memcpy(block + 20, &m_nSelected, 4);
    }
    // A variable read back from its block, built where it is to stay
    // (emplace_back(CGUIDataVariable::Block{bytes})).
    struct Block {
        const unsigned char* bytes;
    };
    explicit CGUIDataVariable(Block block)
    {
        int type = 0;
        std::memcpy(&type, block.bytes + 8, 4);
        std::memcpy(&m_nColumn, block.bytes + 12, 4);
        std::memcpy(&m_nSelected, block.bytes + 20, 4);
        m_nType = static_cast<NmsEnum::VARIABLETYPE>(type);
    }

private:
    // The name and the label in one word (see the top of this file): a
    // CString, or a pointer with its lowest bit set to a counted record.
    class Texts {
    public:
        Texts() { new (m_word) CString(); }
        Texts(const Texts& other)
        {
            if (Record* record = other.Shared()) {
                ++record->refs;
                std::memcpy(m_word, other.m_word, sizeof m_word);
            } else {
                new (m_word) CString(other.Name());
            }
        }
        Texts(Texts&& other) noexcept
        {
            std::memcpy(m_word, other.m_word, sizeof m_word);
            new (other.m_word) CString(); // `other` gave its word away
        }
        Texts& operator=(const Texts& other)
        {
            if (this != &other) {
                Texts copy(other);
                Swap(copy);
            }
            return *this;
        }
        Texts& operator=(Texts&& other) noexcept
        {
            Texts taken(std::move(other));
            Swap(taken);
            return *this;
        }
        ~Texts() { Drop(); }

        const CString& Name() const { return Shared() ? Shared()->name : AsName(); }
        const CString& Label() const { return Shared() ? Shared()->label : Empty(); }
        void Set(const CString& name, const CString& label);
        void Prefetch() const
        {
            std::uintptr_t word;
            std::memcpy(&word, m_word, sizeof word);
            __builtin_prefetch(
                reinterpret_cast<const void*>(word & ~std::uintptr_t{1})); // NOLINT(performance-no-int-to-ptr)
        }

    private:
        struct Record {
            long refs;
            CString name;
            CString label;
        };
        Record* Shared() const
        {
            std::uintptr_t word;
            std::memcpy(&word, m_word, sizeof word);
            return word & 1 ? reinterpret_cast<Record*>(word - 1) : nullptr; // NOLINT(performance-no-int-to-ptr)
        }
        const CString& AsName() const { return *std::launder(reinterpret_cast<const CString*>(m_word)); }
        void Swap(Texts& other) noexcept
        {
            unsigned char mine[sizeof m_word];
            std::memcpy(mine, m_word, sizeof mine);
            std::memcpy(m_word, other.m_word, sizeof m_word);
            std::memcpy(other.m_word, mine, sizeof mine);
        }
        void Drop() noexcept;
        static const CString& Empty();

        // CString is one pointer to an aligned buffer, or null: its lowest
        // bit is always clear (checked where CString is defined).
        alignas(CString) unsigned char m_word[sizeof(CString)];
    };

    void SetTexts(const CString& name, const CString& label)
    {
        m_texts.Set(name, label);
        m_nNameHash = CTextIndex::Hash(name.Str());
    }

    Texts m_texts;
    NmsEnum::VARIABLETYPE m_nType = NmsEnum::VT_UNKNOWN;
    int m_nColumn = 0;
    int m_nSelected = 0;
    // The name's hash, given away with the name: a variable moved from has
    // no name, and the hash of none.
    class NameHash {
    public:
        NameHash() = default;
        NameHash(const NameHash&) = default;
        NameHash& operator=(const NameHash&) = default;
        NameHash(NameHash&& other) noexcept : m_value(std::exchange(other.m_value, kNone)) {}
        NameHash& operator=(NameHash&& other) noexcept
        {
            m_value = std::exchange(other.m_value, kNone);
            return *this;
        }
        NameHash& operator=(std::uint32_t value)
        {
            m_value = value;
            return *this;
        }
        operator std::uint32_t() const { return m_value; }

    private:
        static constexpr std::uint32_t kNone = CTextIndex::Hash({});
        std::uint32_t m_value = kNone;
    };
    NameHash m_nNameHash;
};
