#include "framework/GUIDataVariable.h"

#include "framework/GUIArray.h"

IMPLEMENT_SERIAL(CGUIDataVariable, CObject, 1)

static_assert(sizeof(CGUIDataVariable) <= 32, "a variable list of a million entries stays within 32 MB");

static_assert(sizeof(CString) == sizeof(std::uintptr_t), "a variable's texts take one word");

void CGUIDataVariable::Texts::Set(const CString& name, const CString& label)
{
    Texts replacement;
    if (!label.IsEmpty()) {
        auto* record = new Record{1, name, label};
        replacement.AsName().~CString();
        const auto word = reinterpret_cast<std::uintptr_t>(record) + 1;
        std::memcpy(replacement.m_word, &word, sizeof word);
    } else if (!name.IsEmpty()) {
        *std::launder(reinterpret_cast<CString*>(replacement.m_word)) = name;
    }
    Swap(replacement);
}

void CGUIDataVariable::Texts::Drop() noexcept
{
    if (Record* record = Shared()) {
        if (--record->refs == 0)
            delete record;
    } else {
        AsName().~CString();
    }
}

const CString& CGUIDataVariable::Texts::Empty()
{
    static const CString empty;
    return empty;
}

void CGUIDataVariable::GetDataVariableList(CGUIArray<CGUIDataVariable>& list) const
{
    list.Add(*this);
}

void CGUIDataVariable::Serialize(CArchive& ar)
{
    if (ar.HasNamedLists()) {
        if (ar.IsStoring()) {
            ar << GetVariableName() << static_cast<int>(m_nType) << m_nColumn << GetLabel() << m_nSelected;
        } else {
            CString name, label;
            int type = 0;
            ar >> name >> type >> m_nColumn >> label >> m_nSelected;
            m_nType = static_cast<NmsEnum::VARIABLETYPE>(type);
            SetTexts(name, label);
        }
        return;
    }
    unsigned char block[kBlockSize];
    if (ar.IsStoring()) {
        ToBlock(block);
        ar.Write(block, kBlockSize);
    } else {
        ar.ReadExact(block, kBlockSize);
        *this = CGUIDataVariable(Block{block});
    }
}
