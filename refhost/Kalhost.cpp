#include "refhost/Kalhost.h"

#include "refhost/HostGlobal.h"
#include "refhost/ModuleLoader.h"
#include "refhost/Resources.h"

#include <CLI/CLI.hpp>

#include <iomanip>
#include <iostream>

namespace kalhost {

namespace {

struct Options {
    std::string dataFile;
    bool noData = false;
    std::vector<std::string> categorical;
    bool matrix = false;
    std::string storeFile;
    bool writeAll = false;
    std::string moduleState;
    std::string decimal;
    std::string modulePath;
};

int ListCommands(LoadedModule& module)
{
    // The trace line goes through the module's own wide stream.
    std::cout.flush();
    module.Module().PrintModuleInfo();
    std::cout << std::left << std::setw(6) << "id" << std::setw(28) << "handler" << std::setw(48) << "dialog"
              << std::setw(48) << "settings" << "status\n";
    for (const auto& c : module.Commands())
        std::cout << std::left << std::setw(6) << c.id << std::setw(28) << c.handler << std::setw(48) << c.dialogClass
                  << std::setw(48) << c.settingsClass << (c.available ? "available" : "not available") << '\n';
    return kExitDone;
}

} // namespace

int Run(int argc, char** argv)
{
    // The module writes its trace line to the wide stream; unsynchronised
    // streams let narrow and wide output share standard output.
    std::ios::sync_with_stdio(false);

    CLI::App app{"kalhost: the reference host of the statistics-dialogs module KalDlgStat2"};
    app.require_subcommand(1);
    Options options;
    app.add_option("--data", options.dataFile, "CSV data file to open instead of the built-in sample")
        ->check(CLI::ExistingFile);
    app.add_flag("--no-data", options.noData, "open no data sheet");
    app.add_option("--categorical", options.categorical, "variables to mark categorical (A,B)")->delimiter(',');
    app.add_flag("--matrix", options.matrix, "the open data is a matrix");
    app.add_option("--store", options.storeFile, "settings store file, loaded at start and saved at exit");
    app.add_flag("--write-all", options.writeAll, "write every option, defaults included");
    app.add_option("--module-state", options.moduleState, "the current command module (ANOVA, QC, ...)");
    app.add_option("--decimal", options.decimal, "decimal separator of numbers in commands");
    app.add_option("--module", options.modulePath, "module library to load");

    auto* list = app.add_subcommand("list", "the menu commands: id, handler, dialog, settings, status");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        const int status = app.exit(e);
        return status == 0 ? kExitDone : kExitUsage;
    }

    try {
        auto resources = ResourceTable::LoadEmbedded();
        KalUseRes::SetGlobalResourceHandle(resources.get());
        HostGlobal host(*resources, std::cout, std::cerr);
        LoadedModule module(options.modulePath.empty() ? DefaultModulePath() : std::filesystem::path(options.modulePath), &host);
        int status = kExitDone;
        if (*list)
            status = ListCommands(module);
        host.Store().Clear();
        module.ReleaseModule();
        KalUseRes::SetGlobalResourceHandle(nullptr);
        return status;
    } catch (const std::exception& e) {
        std::cerr << "kalhost: " << e.what() << std::endl;
        return kExitUsage;
    }
}

} // namespace kalhost
