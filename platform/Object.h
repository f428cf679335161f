// CObject and its run-time class: the root of the framework's serialisable
// objects. A class that uses DECLARE_SERIAL/IMPLEMENT_SERIAL can be named,
// tested with IsKindOf and created by name.
#pragma once

#include "platform/Types.h"

class CArchive;
class CObject;

// Diagnostic output sink; diagnostics are empty in release builds of the
// framework and here.
class CDumpContext {};

struct CRuntimeClass {
    const char* m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema; // 0xFFFF for classes that cannot be serialised
    CObject* (*m_pfnCreateObject)();
    const CRuntimeClass* m_pBaseClass;

    CObject* CreateObject() const { return m_pfnCreateObject ? m_pfnCreateObject() : nullptr; }
    bool IsDerivedFrom(const CRuntimeClass* base) const;

    // Classes declared serialisable register themselves at load time.
    static const CRuntimeClass* FromName(const char* className);
    static void Register(const CRuntimeClass* runtimeClass);
    static void Unregister(const CRuntimeClass* runtimeClass);
};

class CObject {
public:
    static const CRuntimeClass classCObject;

    virtual const CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const {}
    virtual void Dump(CDumpContext&) const {}

    bool IsKindOf(const CRuntimeClass* runtimeClass) const { return GetRuntimeClass()->IsDerivedFrom(runtimeClass); }

protected:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject(CObject&&) noexcept = default;
    CObject& operator=(const CObject&) = default;
    CObject& operator=(CObject&&) noexcept = default;
};

// Registers a serialisable class for the lifetime of the library that
// defines it.
struct CClassRegistration {
    explicit CClassRegistration(const CRuntimeClass* runtimeClass) : m_class(runtimeClass)
    {
        CRuntimeClass::Register(runtimeClass);
    }
    ~CClassRegistration() { CRuntimeClass::Unregister(m_class); }
    CClassRegistration(const CClassRegistration&) = delete;
    CClassRegistration& operator=(const CClassRegistration&) = delete;
    const CRuntimeClass* m_class;
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

// Laid out by hand: each macro defines functions a reader should see whole.
// clang-format off
#define DECLARE_DYNAMIC(class_name)                       \
public:                                                   \
    static const CRuntimeClass class##class_name;         \
    const CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_SERIAL(class_name) \
    DECLARE_DYNAMIC(class_name)    \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS_(class_name, base_class_name, schema, create)                                \
    const CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), \
                                                         schema, create, RUNTIME_CLASS(base_class_name)};   \
    const CRuntimeClass* class_name::GetRuntimeClass() const { return RUNTIME_CLASS(class_name); }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    IMPLEMENT_RUNTIMECLASS_(class_name, base_class_name, 0xFFFF, nullptr)

// A class name cannot be parenthesised after `new`.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                               \
    CObject* class_name::CreateObject() { return new class_name; }                          \
    IMPLEMENT_RUNTIMECLASS_(class_name, base_class_name, schema, class_name::CreateObject) \
    static const CClassRegistration registration##class_name(RUNTIME_CLASS(class_name));
// clang-format on
// NOLINTEND(bugprone-macro-parentheses)
