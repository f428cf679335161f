// Value holders of settings objects.
//
// CGUIData<T> holds an edited number with its default and three flags. The
// changed-value rule decides whether a clause tied to it is written: when
// m_nState is 0 (the value no longer holds its default), or when the host's
// "write every option" preference is on and m_nFlag1 is 0.
//
// CGUIDataWnd<T> holds a control's value together with its window (enable)
// state.
#pragma once

#include "platform/Archive.h"

template <class T>
class CGUIData {
public:
    // Every default is made as (1, v, v, 0, 1).
    CGUIData() : CGUIData(T{}) {}
    explicit CGUIData(T value) : CGUIData(1, value, value, 0, 1) {}
    CGUIData(int state, T value, T defaultValue, int flag1, int flag2)
        : m_nState(state), m_Value(value), m_DefaultValue(defaultValue), m_nFlag1(flag1), m_nFlag2(flag2)
    {
    }
    CGUIData(const CGUIData&) = default;
    CGUIData& operator=(const CGUIData&) = default;
    virtual ~CGUIData() = default;

    // Stored in the framework's field order, which is not declaration order:
    // state, flag 1, default, value, flag 2.
    virtual void Serialize(CArchive& ar)
    {
        if (ar.IsStoring())
            ar << m_nState << m_nFlag1 << m_DefaultValue << m_Value << m_nFlag2;
        else
            ar >> m_nState >> m_nFlag1 >> m_DefaultValue >> m_Value >> m_nFlag2;
    }

    bool IsToBeWritten(bool writeEveryOption) const { return m_nState == 0 || (writeEveryOption && m_nFlag1 == 0); }

    // Field by field.
    friend bool operator==(const CGUIData& a, const CGUIData& b)
    {
        return a.m_nState == b.m_nState && a.m_Value == b.m_Value && a.m_DefaultValue == b.m_DefaultValue &&
               a.m_nFlag1 == b.m_nFlag1 && a.m_nFlag2 == b.m_nFlag2;
    }

    int m_nState;
    T m_Value;
    T m_DefaultValue;
    int m_nFlag1;
    int m_nFlag2;
};

template <class T>
class CGUIDataWnd {
public:
    CGUIDataWnd() = default;
    CGUIDataWnd(T value, int windowState) : m_Value(value), m_nWindowState(windowState) {}
    virtual ~CGUIDataWnd() = default;
    CGUIDataWnd(const CGUIDataWnd&) = default;
    CGUIDataWnd& operator=(const CGUIDataWnd&) = default;

    virtual void Serialize(CArchive& ar)
    {
        if (ar.IsStoring())
            ar << m_Value << m_nWindowState;
        else
            ar >> m_Value >> m_nWindowState;
    }

    friend bool operator==(const CGUIDataWnd& a, const CGUIDataWnd& b)
    {
        return a.m_Value == b.m_Value && a.m_nWindowState == b.m_nWindowState;
    }

    T m_Value{};
    int m_nWindowState = 1;
};
