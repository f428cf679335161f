// CGUIDataVariable: one variable of the open data sheet as it appears in a
// variable list.
//
// Lists of 100,000 variables are copied between settings, dialogs and list
// controls, so a variable is small (32 bytes) and cheap to copy: its name
// and its label sit in one shared, counted record, and a copy only counts.
// The count is not atomic: lists live on the user-interface thread.
#pragma once

#include "host/IData.h"
#include "platform/CString.h"
#include "platform/Object.h"

#include <cstring>

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
        : m_texts(Texts::Make(name, label)), m_nType(type), m_nColumn(column), m_nSelected(selected)
    {
    }
    CGUIDataVariable(const CGUIDataVariable& other) : CObject(), m_texts(other.m_texts), m_nType(other.m_nType),
        m_nColumn(other.m_nColumn), m_nSelected(other.m_nSelected)
    {
        if (m_texts)
            ++m_texts->refs;
    }
    CGUIDataVariable(CGUIDataVariable&& other) noexcept : CObject(), m_texts(other.m_texts), m_nType(other.m_nType),
        m_nColumn(other.m_nColumn), m_nSelected(other.m_nSelected)
    {
        other.m_texts = nullptr;
    }
    CGUIDataVariable& operator=(const CGUIDataVariable& other)
    {
        Texts* shared = other.m_texts; // counted first: `other` may be this one
        if (shared)
            ++shared->refs;
        Texts::Release(m_texts);
        m_texts = shared;
        m_nType = other.m_nType;
        m_nColumn = other.m_nColumn;
        m_nSelected = other.m_nSelected;
        return *this;
    }
    CGUIDataVariable& operator=(CGUIDataVariable&& other) noexcept
    {
        if (this != &other) {
            Texts::Release(m_texts);
            m_texts = other.m_texts;
            other.m_texts = nullptr;
            m_nType = other.m_nType;
            m_nColumn = other.m_nColumn;
            m_nSelected = other.m_nSelected;
        }
        return *this;
    }
    ~CGUIDataVariable() override { Texts::Release(m_texts); }

    // Two entries are the same variable when name and type agree; where an
    // entry sits or whether it is selected does not matter.
    friend bool operator==(const CGUIDataVariable& a, const CGUIDataVariable& b)
    {
        return a.GetVariableName() == b.GetVariableName() && a.m_nType == b.m_nType;
    }

    void GetVariableName(CString& name) const { name = GetVariableName(); }
    const CString& GetVariableName() const { return m_texts ? m_texts->name : Empty(); }
    void SetVariableName(const CString& name) { SetTexts(name, GetLabel()); }
    NmsEnum::VARIABLETYPE GetVariableType() const { return m_nType; }
    void SetVariableType(NmsEnum::VARIABLETYPE type) { m_nType = type; }
    int GetColumn() const { return m_nColumn; }
    const CString& GetLabel() const { return m_texts ? m_texts->label : Empty(); }
    int IsSelected() const { return m_nSelected; }
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
    // The name and the label, shared by the copies of a variable.
    struct Texts {
        long refs;
        CString name;
        CString label;

        static Texts* Make(const CString& name, const CString& label)
        {
            return name.IsEmpty() && label.IsEmpty() ? nullptr : new Texts{1, name, label};
        }
        static void Release(Texts* texts) noexcept
        {
            if (texts && --texts->refs == 0)
                Free(texts);
        }
        // Out of line: the last copy frees the record.
        static void Free(Texts* texts) noexcept;
    };

    static const CString& Empty();
    void SetTexts(const CString& name, const CString& label);

    Texts* m_texts = nullptr;
    NmsEnum::VARIABLETYPE m_nType = NmsEnum::VT_UNKNOWN;
    int m_nColumn = 0;
    int m_nSelected = 0;
};
