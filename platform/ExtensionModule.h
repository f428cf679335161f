// Extension-library registration: a library that adds classes and
// resources to the framework initialises its module state on load and
// registers a CDynLinkLibrary, which the framework keeps in its list of
// extension libraries until the module is terminated.
#pragma once

#include "platform/Types.h"

#include <string>
#include <vector>

struct AFX_EXTENSION_MODULE {
    bool bInitialized = false;
    void* hModule = nullptr;
    std::string strPath; // file the library was loaded from
};

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, void* hInstance);
// Removes the CDynLinkLibrary objects of this module (all of them with bAll).
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

class CDynLinkLibrary {
public:
    CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;
    ~CDynLinkLibrary();

    void* m_hModule;
    BOOL m_bSystem;
    std::string m_strPath;
};

// The extension libraries currently registered, oldest first.
std::vector<const CDynLinkLibrary*> AfxGetExtensionLibraries();
