// CGUIDataVariable: one variable of the open data sheet as it appears in a
// variable list.
#pragma once

#include "host/IData.h"
#include "platform/CString.h"
#include "platform/Object.h"

template <class T>
class CGUIArray;

class CGUIDataVariable : public CObject {
    DECLARE_SERIAL(CGUIDataVariable)
public:
    CGUIDataVariable() = default;
    // name, type, the variable's column in the data sheet, a label, and the
    // selection flag of the entry in its list.
    CGUIDataVariable(const CString& name, NmsEnum::VARIABLETYPE type, int column = 0, const CString& label = {},
                     int selected = 0);
    CGUIDataVariable(const CGUIDataVariable&) = default;
    CGUIDataVariable(CGUIDataVariable&&) noexcept = default;
    CGUIDataVariable& operator=(const CGUIDataVariable&) = default;
    CGUIDataVariable& operator=(CGUIDataVariable&&) noexcept = default;

    // Two entries are the same variable when name and type agree; where an
    // entry sits or whether it is selected does not matter.
    friend bool operator==(const CGUIDataVariable& a, const CGUIDataVariable& b)
    {
        return a.m_strName == b.m_strName && a.m_nType == b.m_nType;
    }

    void GetVariableName(CString& name) const { name = m_strName; }
    const CString& GetVariableName() const { return m_strName; }
    void SetVariableName(const CString& name) { m_strName = name; }
    NmsEnum::VARIABLETYPE GetVariableType() const { return m_nType; }
    void SetVariableType(NmsEnum::VARIABLETYPE type) { m_nType = type; }
    int GetColumn() const { return m_nColumn; }
    const CString& GetLabel() const { return m_strLabel; }
    int IsSelected() const { return m_nSelected; }
    void SetSelected(int selected) { m_nSelected = selected; }

    // Appends this variable to `list`.
    void GetDataVariableList(CGUIArray<CGUIDataVariable>& list) const;

    // One element in the archive's list layout (see CGUIArray).
    void Serialize(CArchive& ar) override;

    // The 24-byte image of the plain list layout: zero (table slot), zero
    // (name slot), type, column, zero (label slot), selection flag.
    static constexpr std::size_t kBlockSize = 24;
    void ToBlock(unsigned char* block) const;
    static CGUIDataVariable FromBlock(const unsigned char* block);

private:
    CString m_strName;
    NmsEnum::VARIABLETYPE m_nType = NmsEnum::VT_UNKNOWN;
    int m_nColumn = 0;
    CString m_strLabel;
    int m_nSelected = 0;
};
