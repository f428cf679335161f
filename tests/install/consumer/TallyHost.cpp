// Loads the tally module as a host does and lets it write its line.
#include "host/IModule.h"

#include <dlfcn.h>

#include <iostream>

int main()
{
    void* library = dlopen(TALLY_MODULE, RTLD_NOW);
    if (!library) {
        std::cerr << dlerror() << '\n';
        return 1;
    }
    using Factory = IModule* (*)(IGlobal*);
    auto factory = reinterpret_cast<Factory>(dlsym(library, "GetModuleFactory"));
    IModule* module = factory ? factory(nullptr) : nullptr;
    if (!module)
        return 1;
    module->PrintModuleInfo();
    module->Release();
    return 0;
}
