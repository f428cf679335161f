// Feeds arbitrary action scripts to the ANOVA dialog through the reference
// host, in process: a script may be refused or fail its checks, never crash
// or hang.
#include "Msg/AnalysisofVarianceMsg.h"
#include "Source/DlgStat2.h"
#include "platform/Diagnostics.h"
#include "refhost/ActionScript.h"
#include "refhost/HostGlobal.h"

#include <cstdint>
#include <sstream>

namespace {

// Everything a run needs, made once: resources, host, module, driver.
struct Harness {
    Harness() : resources(kalhost::ResourceTable::LoadEmbedded()), host(*resources, out, out)
    {
        KalUseRes::SetGlobalResourceHandle(resources.get());
        host.SetDataSheet(std::make_unique<kalhost::DataSheet>(kalhost::DataSheet::Sample()));
        module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
        AfxSetDialogDriver(&driver);
        // Reports would only slow the fuzzer down.
        kal::SetAssertionSink([](const std::string&, int) {});
    }

    std::ostringstream out;
    std::unique_ptr<kalhost::ResourceTable> resources;
    kalhost::HostGlobal host;
    CDlgStat2* module = nullptr;
    CHeadlessDriver driver;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Harness harness;
    std::vector<kalhost::ScriptLine> lines;
    try {
        lines = kalhost::ParseScript(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const kalhost::ScriptError&) {
        return 0;
    }
    // Each script starts from fresh settings.
    harness.host.Store().Clear();
    harness.out.str({});
    kalhost::ScriptRunner runner(std::move(lines), true, [](UINT id) {
        if (id == 2008)
            harness.module->GetAnalysisofVarianceMsg()->OnKVCommand(id);
    });
    harness.driver.SetScript([&runner](CHeadlessSession& s) { runner.RunDialog(s); });
    runner.RunAll();
    return 0;
}
