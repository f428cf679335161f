#include "framework/GUIDataVariable.h"

#include "framework/GUIArray.h"

#include <cstring>

IMPLEMENT_SERIAL(CGUIDataVariable, CObject, 1)

CGUIDataVariable::CGUIDataVariable(const CString& name, NmsEnum::VARIABLETYPE type, int column, const CString& label,
                                   int selected)
    : m_strName(name), m_nType(type), m_nColumn(column), m_strLabel(label), m_nSelected(selected)
{
}

void CGUIDataVariable::GetDataVariableList(CGUIArray<CGUIDataVariable>& list) const
{
    list.Add(*this);
}

void CGUIDataVariable::ToBlock(unsigned char* block) const
{
    const int image[6] = {0, 0, static_cast<int>(m_nType), m_nColumn, 0, m_nSelected};
    std::memcpy(block, image, kBlockSize);
}

CGUIDataVariable CGUIDataVariable::FromBlock(const unsigned char* block)
{
    int image[6];
    std::memcpy(image, block, kBlockSize);
    return CGUIDataVariable({}, static_cast<NmsEnum::VARIABLETYPE>(image[2]), image[3], {}, image[5]);
}

void CGUIDataVariable::Serialize(CArchive& ar)
{
    if (ar.HasNamedLists()) {
        if (ar.IsStoring()) {
            ar << m_strName << static_cast<int>(m_nType) << m_nColumn << m_strLabel << m_nSelected;
        } else {
            int type = 0;
            ar >> m_strName >> type >> m_nColumn >> m_strLabel >> m_nSelected;
            m_nType = static_cast<NmsEnum::VARIABLETYPE>(type);
        }
        return;
    }
    unsigned char block[kBlockSize];
    if (ar.IsStoring()) {
        ToBlock(block);
        ar.Write(block, kBlockSize);
    } else {
        ar.ReadExact(block, kBlockSize);
        *this = FromBlock(block);
    }
}
