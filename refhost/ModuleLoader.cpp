#include "refhost/ModuleLoader.h"

#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/CorrelationsMsg.h"
#include "Msg/GeneralLinearModelMsg.h"
#include "Msg/MixedModelMsg.h"
#include "Msg/MixedRegressionMsg.h"
#include "Msg/MultivariateAnalysisMsg.h"
#include "Msg/QualityAnalysisMsg.h"
#include "Msg/RegressionMsg.h"
#include "Msg/Stat2SingleMenuItemsMsg.h"

#include <dlfcn.h>

namespace kalhost {

LoadedModule::LoadedModule(const std::filesystem::path& library, IGlobal* global) : m_global(global)
{
    m_library = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!m_library)
        throw ModuleLoadError("cannot load module " + library.string() + ": " + dlerror());
    auto factory = reinterpret_cast<GetModuleFactoryFn>(dlsym(m_library, "GetModuleFactory"));
    if (!factory) {
        const std::string reason = dlerror();
        dlclose(m_library);
        throw ModuleLoadError(library.string() + " does not export GetModuleFactory: " + reason);
    }
    IModule* module = factory(global);
    m_module = dynamic_cast<IDlgStat2*>(module);
    if (!m_module) {
        if (module)
            module->Release();
        dlclose(m_library);
        throw ModuleLoadError(library.string() + ": GetModuleFactory did not return the statistics-dialogs module");
    }
}

LoadedModule::~LoadedModule()
{
    ReleaseModule();
    dlclose(m_library);
}

void LoadedModule::ReleaseModule()
{
    if (m_module) {
        m_module->Release();
        m_module = nullptr;
    }
}

namespace {

std::vector<CMenuGroupMsg*> HandlersOf(IDlgStat2* module)
{
    if (!module)
        return {};
    IDlgStat2& m = *module;
    return {m.GetAnalysisofVarianceMsg(), m.GetCorrelationsMsg(),    m.GetGeneralLinearModelMsg(),
            m.GetMixedModelMsg(),         m.GetMixedRegressionMsg(), m.GetMultivariateAnalysisMsg(),
            m.GetQualityAnalysisMsg(),    m.GetRegressionMsg(),      m.GetStat2SingleMenuItemsMsg()};
}

} // namespace

std::vector<MenuCommand> LoadedModule::Commands()
{
    std::vector<MenuCommand> commands;
    for (CMenuGroupMsg* handler : HandlersOf(m_module)) {
        if (!handler)
            continue;
        for (const auto& row : handler->Rows())
            commands.push_back(
                {row.id, handler->GetHandlerName(), row.dialogClass, row.settingsClass, row.IsAvailable()});
    }
    return commands;
}

bool LoadedModule::ConfirmedLines(UINT id, const CGUIBaseObj* stored, CLIST<CCmdInfo>& lines)
{
    // Only what the headers define inline is used here: the code is the
    // module's.
    for (CMenuGroupMsg* handler : HandlersOf(m_module))
        for (const auto& row : handler ? handler->Rows() : std::span<const MenuCommandRow>())
            if (row.id == id && row.confirm)
                return row.confirm(m_global, id, row, stored, lines);
    return false;
}

IKVMsg* LoadedModule::Handler(const std::string& className)
{
    for (CMenuGroupMsg* handler : HandlersOf(m_module))
        if (handler && className == handler->GetHandlerName())
            return handler;
    return nullptr;
}

std::filesystem::path DefaultModulePath()
{
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path bin = error ? std::filesystem::current_path() : self.parent_path();
    // Beside kalhost in a build tree; in the module folder of an installed
    // tree, wherever that tree was moved.
    const std::filesystem::path beside = bin / "libKalDlgStat2.so";
    const std::filesystem::path installed = bin / KAL_MODULEDIR_FROM_BINDIR / "libKalDlgStat2.so";
    return std::filesystem::exists(beside, error) || !std::filesystem::exists(installed, error)
               ? beside
               : installed.lexically_normal();
}

} // namespace kalhost
