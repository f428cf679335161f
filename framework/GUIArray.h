// CGUIArray<T>: the list type of all settings, with the framework's archive
// layout: the element count in the archive's count form, then the elements.
//
//  - variable lists: 24-byte element blocks (see CGUIDataVariable), moved in
//    chunks of at most 89478485 elements so that one transfer never exceeds
//    the largest signed 32-bit byte count; names are not part of a block.
//    An archive with the namedLists schema writes each element instead as
//    name, type, column, label, selection flag.
//  - CString lists: the strings one after another.
//  - int and double lists: the raw little-endian values.
//  - lists of variable lists: each inner list with its own layout.
#pragma once

#include "framework/GUIDataVariable.h"
#include "platform/Archive.h"
#include "platform/Collections.h"

template <class T>
class CGUIArray : public CArray<T> {
public:
    using CArray<T>::CArray;
    CGUIArray() = default;

    void Serialize(CArchive& ar) override;

    friend bool operator==(const CGUIArray& a, const CGUIArray& b)
    {
        return static_cast<const CArray<T>&>(a) == static_cast<const CArray<T>&>(b);
    }
};

template <>
void CGUIArray<CGUIDataVariable>::Serialize(CArchive& ar);
template <>
void CGUIArray<CString>::Serialize(CArchive& ar);
template <>
void CGUIArray<int>::Serialize(CArchive& ar);
template <>
void CGUIArray<double>::Serialize(CArchive& ar);
template <>
void CGUIArray<CGUIArray<CGUIDataVariable>>::Serialize(CArchive& ar);

using CVariableList = CGUIArray<CGUIDataVariable>;
