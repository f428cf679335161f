#include "framework/GUIDataVariable.h"

#include "framework/GUIArray.h"

IMPLEMENT_SERIAL(CGUIDataVariable, CObject, 1)

static_assert(sizeof(CGUIDataVariable) <= 32, "a variable list of a million entries stays within 32 MB");

void CGUIDataVariable::Texts::Free(Texts* texts) noexcept
{
    delete texts;
}

const CString& CGUIDataVariable::Empty()
{
    static const CString empty;
    return empty;
}

void CGUIDataVariable::SetTexts(const CString& name, const CString& label)
{
    Texts* replacement = Texts::Make(name, label);
    Texts::Release(m_texts);
    m_texts = replacement;
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
