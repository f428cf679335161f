// IModule: what every module of the package offers its host, in slot order.
#pragma once

#include <string>

class IGlobal;
class IBinReader;
class IModule;

// A reference-counted holder the host hands to ReleaseCountedRef: the held
// module and its signed reference count. Heap-allocated; freed together
// with the object when the count runs out.
struct KalCountedRef {
    IModule* m_pObject;
    long m_nRefCount;
};

class IModule {
public:
    virtual IGlobal* GetGlobal() = 0;
    virtual void Release() = 0;
    virtual void PrintModuleInfo() = 0;
    virtual std::wstring& GetModuleName() = 0;
    virtual std::wstring& SetModuleName(const std::wstring& name) = 0;
    virtual bool ReleaseCountedRef(KalCountedRef* holder, int reason) = 0;
    virtual void NoOperation() = 0;
    virtual IBinReader* GetResourceHandle() = 0;

protected:
    // Modules are destroyed through Release, never through this interface.
    ~IModule() = default;
};

// The host's module registry, reached through IGlobal.
class IModuleRegistry {
public:
    virtual IModule* GetModule(const std::wstring& name) = 0;

protected:
    ~IModuleRegistry() = default;
};
