#include "platform/Object.h"

#include <algorithm>
#include <cstring>
#include <vector>

const CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr};

const CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

void CObject::Serialize(CArchive&) {}

namespace {

std::vector<const CRuntimeClass*>& Registry()
{
    static std::vector<const CRuntimeClass*> classes;
    return classes;
}

} // namespace

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* c = this; c; c = c->m_pBaseClass)
        if (c == base)
            return true;
    return false;
}

const CRuntimeClass* CRuntimeClass::FromName(const char* className)
{
    for (const CRuntimeClass* c : Registry())
        if (std::strcmp(c->m_lpszClassName, className) == 0)
            return c;
    return nullptr;
}

void CRuntimeClass::Register(const CRuntimeClass* runtimeClass)
{
    Registry().push_back(runtimeClass);
}

void CRuntimeClass::Unregister(const CRuntimeClass* runtimeClass)
{
    auto& classes = Registry();
    classes.erase(std::remove(classes.begin(), classes.end(), runtimeClass), classes.end());
}
