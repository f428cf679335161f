// Loads the module library the way the package's host does: dlopen, look up
// the unmangled GetModuleFactory, call it with the host's IGlobal. Unloads
// in the reverse order.
//
// The handler classes are known here from their headers only; their type
// information lives in the loaded library. All use of them stays in
// ModuleLoader.cpp, which is built without the sanitizer's dynamic-type
// check for that reason.
#pragma once

#include "Source/IDlgStat2.h"
#include "framework/CmdInfo.h"
#include "platform/Types.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

class CGUIBaseObj;
class IKVMsg;

namespace kalhost {

// One menu command as the module's handlers describe it.
struct MenuCommand {
    UINT id;
    std::string handler;
    std::string dialogClass;
    std::string settingsClass;
    bool available;
};

class ModuleLoadError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class LoadedModule {
public:
    // Throws ModuleLoadError naming the library and the loader's reason.
    LoadedModule(const std::filesystem::path& library, IGlobal* global);
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    IDlgStat2& Module() { return *m_module; }
    // The commands of the nine handlers, in the module's getter order.
    std::vector<MenuCommand> Commands();
    // The handler of that class name, or null.
    IKVMsg* Handler(const std::string& className);
    // The lines that pressing OK at once in the dialog of command `id` writes
    // for `stored` (null: the defaults), as the launch routine wires it;
    // false when the command has no dialog here or the dialog refuses.
    bool ConfirmedLines(UINT id, const CGUIBaseObj* stored, CLIST<CCmdInfo>& lines);
    // Releases the module object; the library stays loaded until destruction.
    void ReleaseModule();

private:
    void* m_library = nullptr;
    IGlobal* m_global = nullptr;
    IDlgStat2* m_module = nullptr;
};

// The module library that sits beside the running program.
std::filesystem::path DefaultModulePath();

} // namespace kalhost
