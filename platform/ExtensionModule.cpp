#include "platform/ExtensionModule.h"

#include <algorithm>
#include <dlfcn.h>
#include <memory>

namespace {

std::vector<std::unique_ptr<CDynLinkLibrary>>& Libraries()
{
    static std::vector<std::unique_ptr<CDynLinkLibrary>> libraries;
    return libraries;
}

} // namespace

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, void* hInstance)
{
    if (!hInstance)
        return FALSE;
    state.hModule = hInstance;
    Dl_info info{};
    if (dladdr(hInstance, &info) && info.dli_fname)
        state.strPath = info.dli_fname;
    state.bInitialized = true;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    auto& libraries = Libraries();
    std::erase_if(libraries, [&](const auto& library) { return bAll || library->m_hModule == state.hModule; });
    state.bInitialized = false;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_bSystem(bSystem), m_strPath(state.strPath)
{
    // The framework owns the object from here on; AfxTermExtensionModule
    // deletes it.
    Libraries().emplace_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary() = default;

std::vector<const CDynLinkLibrary*> AfxGetExtensionLibraries()
{
    std::vector<const CDynLinkLibrary*> result;
    for (const auto& library : Libraries())
        result.push_back(library.get());
    return result;
}
