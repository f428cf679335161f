#include "refhost/Kalhost.h"

#include "host/IKVMsg.h"
#include "platform/HeadlessDriver.h"
#include "refhost/ActionScript.h"
#include "refhost/HelpFiles.h"
#include "refhost/HostGlobal.h"
#include "refhost/ModuleLoader.h"
#include "refhost/Resources.h"
#include "refhost/SettingsStore.h"

#include "refhost/QtViewPlugin.h"

#include <CLI/CLI.hpp>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iomanip>
#include <iostream>
#include <map>
#include <optional>
#include <set>

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

    bool availableOnly = false;
    unsigned int commandId = 0;
    std::string actionsFile;
    bool gui = false;
    std::string screenshotFile;
    std::string playFile;
    std::string dumpFile;
};

// Something the user asked for that cannot be done: message, status 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Reads a script to its end, at most kMaxScriptBytes of it. Reading at the
// descriptor tells a stream that cannot be read (closed, a directory) from
// one that is empty.
std::string ReadScript(int fd, const std::string& name)
{
    std::string text;
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            throw UsageError(name + " cannot be read: " + std::strerror(errno));
        if (n == 0)
            return text;
        text.append(buffer, static_cast<std::size_t>(n));
        if (text.size() > kMaxScriptBytes)
            throw UsageError(name + " is longer than " + std::to_string(kMaxScriptBytes >> 20) +
                             " MiB, more than any script needs");
    }
}

// A script: standard input ("-") or a regular file. A directory or a device
// is refused before it is read, so nothing blocks or grows without end.
std::string ReadText(const std::string& file)
{
    if (file == "-")
        return ReadScript(STDIN_FILENO, "standard input");
    const int fd = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        throw UsageError(file + ": cannot be read: " + std::strerror(errno));
    struct Closer {
        int fd;
        ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        throw UsageError(file + ": cannot be read: it is " +
                         (S_ISDIR(info.st_mode) ? "a directory" : "not a regular file") +
                         "; give a script file, or - for standard input");
    return ReadScript(fd, file);
}

std::string ScriptName(const std::string& file)
{
    return file == "-" ? "standard input" : file;
}

std::vector<ScriptLine> ParseScriptFile(const std::string& file)
{
    try {
        return ParseScript(ReadText(file));
    } catch (const ScriptError& e) {
        throw UsageError(ScriptName(file) + " " + e.what());
    }
}

// A character that can stand between the digits of a number in a command
// line without being read as something else: not a digit, letter, blank,
// quote or control character, and none of the signs of names, clauses and
// model terms.
bool IsDecimalSeparator(char16_t c)
{
    if (c < 0x21 || c > 0x7E)
        return false; // blanks, control characters, and letters of other scripts
    if ((c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'))
        return false;
    return std::u16string_view(u"'\"/=;+-*()&$_#").find(c) == std::u16string_view::npos;
}

// The handler class the menu bar gives command `id` to, or empty.
std::string HandlerOf(const std::vector<MenuNode>& nodes, UINT id)
{
    for (const auto& node : nodes) {
        if (node.id == id && id != 0)
            return node.handler;
        if (auto handler = HandlerOf(node.items, id); !handler.empty())
            return handler;
    }
    return {};
}

// One kalhost run: the host, its data, the module and its store.
class Session {
public:
    // Commands that run dialogs or write lines have the resources parsed
    // first, so that a broken one stops them before anything else happens;
    // the others leave them to the first lookup.
    enum class Parse { ResourcesFirst, ResourcesOnUse };

    Session(const Options& options, Parse parse)
        : m_options(options), m_resources(ResourceTable::Embedded()), m_host(*m_resources, std::cout, std::cerr)
    {
        if (parse == Parse::ResourcesFirst)
            m_resources->Load();
        KalUseRes::SetGlobalResourceHandle(m_resources.get());
        ApplyPreferences();
        OpenData();
        m_module.emplace(options.modulePath.empty() ? DefaultModulePath() : std::filesystem::path(options.modulePath),
                         &m_host);
        LoadStore();
    }

    ~Session()
    {
        // Settings objects are the module's: gone before the module is.
        m_host.Store().Clear();
        m_module.reset();
        KalUseRes::SetGlobalResourceHandle(nullptr);
    }

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Saves the store, if one was given and may be written; false after
    // reporting a failure.
    bool SaveStore()
    {
        if (m_options.storeFile.empty() || m_storeReadOnly)
            return true;
        try {
            const auto report = m_host.Store().Save(m_options.storeFile);
            if (!report.setAside.empty()) {
                for (const auto& part : report.setAside)
                    StoreNote(part.reason);
                StoreNote("set aside in " + report.aside.string() + " while saving (kalhost store-dump " +
                          report.aside.string() + " shows it)");
            }
            return true;
        } catch (const std::exception& e) {
            std::cout.flush();
            std::cerr << "kalhost: the settings store " << Printable(e.what())
                      << "; the choices of this session are not kept" << std::endl;
            return false;
        }
    }

    HostGlobal& Host() { return m_host; }
    LoadedModule& Module() { return *m_module; }
    const ResourceTable& Resources() const { return *m_resources; }

    bool HasMenuCommand(UINT id) const { return !HandlerOf(m_resources->GetMenuBar(), id).empty(); }

    // Sends `id` to the handler of its menu group, as the host does.
    void SendMenuCommand(UINT id)
    {
        const std::string handlerName = HandlerOf(m_resources->GetMenuBar(), id);
        IKVMsg* handler = handlerName.empty() ? nullptr : m_module->Handler(handlerName);
        if (!handler)
            throw UsageError("no menu command " + std::to_string(id));
        handler->OnKVCommand(id);
    }

private:
    void ApplyPreferences()
    {
        HostPreferences& p = m_host.Preferences();
        p.writeEveryOption = m_options.writeAll;
        p.matrixData = m_options.matrix;
        if (!m_options.decimal.empty()) {
            const CString separator = CString::FromUtf8(m_options.decimal);
            if (separator.GetLength() != 1 || !IsDecimalSeparator(separator[0]))
                throw UsageError("--decimal takes one punctuation character that the command language does not "
                                 "use otherwise (such as , or .), not \"" +
                                 m_options.decimal + "\"");
            p.decimalSeparator = separator[0];
        }
        if (!m_options.moduleState.empty())
            m_host.SetCurrentCommandModule(CString::FromUtf8(m_options.moduleState));
    }

    void OpenData()
    {
        if (m_options.noData) {
            if (!m_options.dataFile.empty() || !m_options.categorical.empty())
                throw UsageError("--no-data cannot go with --data or --categorical");
            return;
        }
        auto sheet = std::make_unique<DataSheet>(m_options.dataFile.empty() ? DataSheet::Sample()
                                                                            : DataSheet::LoadCsv(m_options.dataFile));
        sheet->MarkCategorical(m_options.categorical);
        m_host.SetDataSheet(std::move(sheet));
    }

    void StoreNote(const std::string& what) const
    {
        std::cerr << "kalhost: settings store " << Printable(m_options.storeFile + ": " + what) << std::endl;
    }

    // Takes over only a store or a name that is free; loads every entry its
    // dialog accepts and sets the others aside, so that one damaged entry
    // costs that entry only.
    void LoadStore()
    {
        const std::filesystem::path file = m_options.storeFile;
        if (file.empty())
            return;
        StoreFileState state;
        SettingsStore::LoadReport report;
        try {
            // Nothing is known about a file that is not a store: it stays as
            // it is, and the run stops before it could be overwritten.
            state = InspectStoreFile(file);
            if (!state.writable) {
                m_storeReadOnly = true;
                StoreNote("it is read-only, so the choices of this session will not be saved (make it writable, "
                          "or give another --store)");
            } else {
                RemoveStaleTemporaries(file);
            }
            if (!state.exists)
                return;
            // An entry is of use when its dialog can take it; whether its OK
            // would pass (a test needs its model, loaded later) is for
            // when it opens, so the check shows no messages.
            report = m_host.Store().Load(file, [this](UINT id, CGUIBaseObj& settings) {
                const HostGlobal::MutedMessages muted(m_host);
                CLIST<CCmdInfo> lines;
                m_module->ConfirmedLines(id, &settings, lines);
            });
        } catch (const StoreError& e) {
            throw UsageError(std::string("the settings store ") + e.what());
        }
        if (report.missing > 0)
            StoreNote(std::to_string(report.missing) + (report.missing == 1 ? " entry is" : " entries are") +
                      " missing: the file was cut short after its last entry");
        if (report.rejected.empty())
            return;
        for (const auto& part : report.rejected)
            StoreNote(part.reason);
        const std::string others = "the session goes on with the other " + std::to_string(report.loaded) +
                                   (report.loaded == 1 ? " entry" : " entries");
        if (m_storeReadOnly) {
            StoreNote("the read-only store keeps what could not be used; " + others);
            return;
        }
        try {
            const auto aside = KeepAside(file, report.rejected);
            m_host.Store().Forget(report.rejected);
            StoreNote((report.rejected.size() == 1 ? "that part is" : "those parts are") +
                      std::string(" set aside in ") + aside.string() + " (kalhost store-dump " + aside.string() +
                      " shows them); " + others);
        } catch (const StoreError& e) {
            StoreNote(std::string("what could not be used stays in the store, since it cannot be set aside: ") +
                      e.what());
        }
    }

    const Options& m_options;
    std::unique_ptr<ResourceTable> m_resources;
    HostGlobal m_host;
    std::optional<LoadedModule> m_module;
    bool m_storeReadOnly = false;
};

// Where each command sits in the menus, as a user reads it: "Analysis of
// Variance > Estimate Model..." (the menu bar's own entry and the mnemonic
// marks left out). One walk of the menus for all commands.
void CollectMenuPaths(const std::vector<MenuNode>& nodes, const std::string& above, bool top,
                      std::map<UINT, std::string>& paths)
{
    for (const auto& node : nodes) {
        CString text = node.text;
        text.Remove(u'&');
        const std::string path = top ? std::string() : above + (above.empty() ? "" : " > ") + text.ToUtf8();
        if (node.id != 0)
            paths.emplace(node.id, path);
        CollectMenuPaths(node.items, path, false, paths);
    }
}

// One row per menu command: id first and status last, so that scripts read
// both by position; the menu path has blanks, the class names have none.
int ListCommands(Session& session, bool availableOnly)
{
    // The trace line goes through the module's own wide stream.
    std::cout.flush();
    session.Module().Module().PrintModuleInfo();
    std::map<UINT, std::string> menus;
    CollectMenuPaths(session.Resources().ReadMenuBarAlone(), {}, true, menus);
    using Row = std::array<std::string, 6>; // id, menu, handler, dialog, settings, status
    std::vector<Row> rows{{"id", "menu", "handler", "dialog", "settings", "status"}};
    for (const auto& c : session.Module().Commands())
        rows.push_back({std::to_string(c.id), menus[c.id], c.handler, c.dialogClass, c.settingsClass,
                        c.available ? "available" : "not available"});
    // The columns are as wide with --available as without.
    std::array<std::size_t, 6> widths{};
    for (const Row& row : rows)
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size() + 2);
    for (const Row& row : rows) {
        if (availableOnly && row.back() == "not available")
            continue;
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            std::cout << std::left << std::setw(static_cast<int>(widths[i])) << row[i];
        std::cout << row.back() << '\n';
    }
    return kExitDone;
}

// The status a finished script run ends with.
int StatusOf(const ScriptRunner& runner, const std::string& script)
{
    switch (runner.GetOutcome()) {
    case ScriptRunner::Outcome::BadLine:
        std::cerr << "kalhost: " << Printable(ScriptName(script) + " " + runner.GetMessage()) << std::endl;
        return kExitUsage;
    case ScriptRunner::Outcome::ExpectFailed:
        std::cerr << "kalhost: " << Printable(ScriptName(script) + " " + runner.GetMessage()) << std::endl;
        return kExitExpectFailed;
    case ScriptRunner::Outcome::Confirmed: return kExitDone;
    default: return kExitDialogNotConfirmed;
    }
}

// The help service while kalhost runs dialogs: Help names the topic of the
// analysis and where its document is; `show` tells the user.
class HelpScope {
public:
    using Show = std::function<void(UINT context, const HelpDocument& help)>;

    HelpScope(const Session& session, Show show)
        : m_previous(kal::SetHelpSink([&session, show = std::move(show)](UINT context) {
              show(context, FindHelpDocument(session.Resources().GetHelpTopic(context), ProgramDirectory()));
          }))
    {
    }
    ~HelpScope() { kal::SetHelpSink(std::move(m_previous)); }
    HelpScope(const HelpScope&) = delete;
    HelpScope& operator=(const HelpScope&) = delete;

    // On standard error, where scripts and their readers see it.
    static void Print(UINT context, const HelpDocument& help)
    {
        std::cout.flush();
        std::cerr << "kalhost: help for command " << context << ": " << help.Describe() << std::endl;
    }

private:
    kal::HelpSink m_previous;
};

// Makes a driver the active one for a scope.
class DriverScope {
public:
    explicit DriverScope(CDialogDriver& driver) : m_previous(AfxSetDialogDriver(&driver)) {}
    ~DriverScope() { AfxSetDialogDriver(m_previous); }
    DriverScope(const DriverScope&) = delete;
    DriverScope& operator=(const DriverScope&) = delete;

private:
    CDialogDriver* m_previous;
};

// `open ID`: sends the command with `driver` running the dialog it opens;
// `setScript` gives the driver the script's actions, if there are any.
int RunOpen(Session& session, const Options& options, CDialogDriver& driver,
            const std::function<void(CHeadlessDriver::Script)>& setScript)
{
    std::optional<ScriptRunner> runner;
    if (!options.actionsFile.empty()) {
        runner.emplace(ParseScriptFile(options.actionsFile), false, nullptr);
        setScript([&runner](CHeadlessSession& s) { runner->RunDialog(s); });
    }
    const int before = session.Host().CommandsRun();
    {
        DriverScope scope(driver);
        session.SendMenuCommand(options.commandId);
    }
    if (runner && runner->Failed())
        return StatusOf(*runner, options.actionsFile);
    return session.Host().CommandsRun() > before ? kExitDone : kExitDialogNotConfirmed;
}

int OpenHeadless(Session& session, const Options& options)
{
    CHeadlessDriver driver;
    const int status = RunOpen(session, options, driver,
                               [&driver](CHeadlessDriver::Script script) { driver.SetScript(std::move(script)); });
    if (options.actionsFile.empty() && driver.LastLeftOpen())
        std::cerr << "kalhost: nobody acted in the dialog of " << options.commandId
                  << ", so it was left open: give it an action script (--actions FILE, or - for standard input), "
                  << "or show it in a window with --gui" << std::endl;
    else if (status == kExitDialogNotConfirmed && driver.LastLeftOpen())
        std::cerr << "kalhost: " << ScriptName(options.actionsFile) << " ended with the dialog of " << options.commandId
                  << " still open; end its actions with ok or cancel" << std::endl;
    return status;
}

// The Qt view plugin beside kalhost; it stays loaded until the process
// ends, as Qt expects.
KalCreateQtViewFn LoadQtView()
{
    const auto plugin = DefaultModulePath().parent_path() / "libkalqtview.so";
    void* library = dlopen(plugin.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw UsageError(std::string("--gui needs the Qt view, which cannot be loaded: ") + dlerror());
    auto create = reinterpret_cast<KalCreateQtViewFn>(dlsym(library, "KalCreateQtView"));
    if (!create)
        throw UsageError(plugin.string() + " is not the Qt view");
    return create;
}

int OpenInWindow(Session& session, const Options& options, int& argc, char** argv)
{
    const bool noDisplay = !std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY");
    if (noDisplay && options.screenshotFile.empty())
        throw UsageError("--gui needs a display (or --screenshot FILE.png to render without one)");
    const KalCreateQtViewFn create = LoadQtView();
    std::unique_ptr<IQtView> view(create(&argc, argv, !options.screenshotFile.empty() || noDisplay));
    view->SetScreenshotFile(options.screenshotFile);
    // A user at the window sees messages there; a screenshot run has none.
    if (options.screenshotFile.empty())
        session.Host().SetMessagePresenter([&view](const CString& text) { view->ShowMessage(text); });
    struct PresenterReset {
        HostGlobal& host;
        ~PresenterReset() { host.SetMessagePresenter({}); }
    } reset{session.Host()};
    // A user at the window gets the document in the desktop's viewer.
    std::optional<HelpScope> help;
    if (options.screenshotFile.empty())
        help.emplace(session, [&view](UINT, const HelpDocument& document) {
            view->ShowHelp(document.Url(), document.Describe());
        });
    const int status = RunOpen(session, options, view->Driver(),
                               [&view](CHeadlessDriver::Script script) { view->SetScript(std::move(script)); });
    // A picture that was written is what a screenshot run is for, whether or
    // not the script closed the dialog.
    if (!options.screenshotFile.empty() && status == kExitDialogNotConfirmed && view->LastLeftOpen())
        return kExitDone;
    return status;
}

int Play(Session& session, const Options& options)
{
    std::vector<ScriptLine> lines = ParseScriptFile(options.playFile);
    // Every command must exist before the first dialog opens: a bad id at
    // the end must not cost the work confirmed before it.
    for (const auto& line : lines)
        if (line.verb == "open" && !session.HasMenuCommand(static_cast<UINT>(std::stoul(line.args[0]))))
            throw UsageError(ScriptName(options.playFile) + " line " + std::to_string(line.number) +
                             ": no menu command " + line.args[0]);
    CHeadlessDriver driver;
    ScriptRunner runner(std::move(lines), true, [&session](UINT id) { session.SendMenuCommand(id); });
    runner.SetNoteSink([&options](const std::string& note) {
        std::cout.flush();
        std::cerr << "kalhost: " << Printable(ScriptName(options.playFile) + " " + note) << std::endl;
    });
    driver.SetScript([&runner](CHeadlessSession& s) { runner.RunDialog(s); });
    {
        DriverScope scope(driver);
        runner.RunAll();
    }
    if (runner.GetOpenCount() == 0 && !runner.Failed())
        return kExitDone; // a script without dialogs has nothing to confirm
    if (!runner.Failed() && driver.LastLeftOpen()) {
        std::cout.flush();
        std::cerr << "kalhost: " << ScriptName(options.playFile) << " ended with the dialog opened at line "
                  << runner.GetOpenLine() << " still open; end its actions with ok or cancel" << std::endl;
    }
    return StatusOf(runner, options.playFile);
}

int PrintCommands(Session& session, UINT id)
{
    std::optional<MenuCommand> row;
    for (const auto& c : session.Module().Commands())
        if (c.id == id)
            row = c;
    if (!row)
        throw UsageError("no menu command " + std::to_string(id));
    if (!row->available) {
        session.Host().ReportMessage(100190500, 0);
        return kExitDialogNotConfirmed;
    }
    // What pressing OK at once would write for what is stored (the defaults
    // when nothing is).
    CLIST<CCmdInfo> lines;
    if (!session.Module().ConfirmedLines(id, session.Host().Store().Get(id), lines)) {
        std::cerr << "kalhost: the dialog of command " << id << " does not accept the stored settings" << std::endl;
        return kExitDialogNotConfirmed;
    }
    for (const auto& line : lines)
        session.Host().ExecuteLine(line.m_strCommand);
    std::cout.flush();
    return kExitDone;
}

// A store as far as it is intact: each entry with the lines its dialog
// writes, and each damaged part with what is wrong with it.
int DumpStore(Session& session, const std::string& file)
{
    const StoreContents contents = ReadStoreFile(file);
    const auto& entries = contents.entries;
    std::cout << file << ": " << entries.size() << (entries.size() == 1 ? " entry" : " entries");
    if (!contents.damaged.empty())
        std::cout << ", " << contents.damaged.size() << " damaged "
                  << (contents.damaged.size() == 1 ? "part" : "parts");
    std::cout << '\n';
    for (const auto& entry : entries) {
        std::cout << "command " << entry.id << ", " << Printable(entry.className) << ", " << entry.record.size()
                  << " bytes\n";
        try {
            auto settings = LoadEntry(entry);
            if (!settings) {
                std::cout << "  (this module has no class " << Printable(entry.className) << ")\n";
                continue;
            }
            CLIST<CCmdInfo> lines;
            if (!session.Module().ConfirmedLines(entry.id, settings.get(), lines)) {
                std::cout << "  (no dialog of this module confirms it; the lines as stored:)\n";
                settings->GetCommandInfoList(lines);
            }
            for (const auto& line : lines)
                std::cout << "  " << line.m_strCommand.ToUtf8() << '\n';
        } catch (const StoreError& e) {
            std::cout << "  (unreadable: " << Printable(e.what()) << ")\n";
        } catch (const CException& e) {
            std::cout << "  (not accepted by its dialog: " << Printable(e.what()) << ")\n";
        }
    }
    for (const auto& part : contents.damaged)
        std::cout << "damaged, " << part.bytes.size() << " bytes: " << Printable(part.reason) << '\n';
    if (contents.missing > 0)
        std::cout << contents.missing << (contents.missing == 1 ? " entry is" : " entries are")
                  << " missing: the file was cut short after its last entry\n";
    return kExitDone;
}

} // namespace

namespace {

constexpr const char* kSubcommands[] = {"list", "open", "play", "commands", "store-dump"};

const char* const kFooter =
    "Exit status: 0 done; 1 the last dialog was cancelled or left open; 2 bad usage, a bad script line, or a\n"
    "file or output that cannot be read or written; 3 an expect check failed.\n"
    "Action scripts (open, play): see kalhost(1) or docs/action-language.md.\n";

// The first argument that is neither an option nor an option's value: the
// subcommand the user meant, known or not.
std::string SubcommandWord(int argc, char** argv)
{
    static const std::set<std::string> takesValue = {"--data",         "--categorical", "--store",
                                                     "--module-state", "--decimal",     "--module"};
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (arg.empty() || arg[0] != '-')
            return arg;
        if (takesValue.count(arg))
            ++i;
    }
    return {};
}

bool AsksForHelpOrVersion(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (const std::string arg = argv[i]; arg == "-h" || arg == "--help" || arg == "--version")
            return true;
    return false;
}

// What `kalhost` alone prints: the shape of a call and three first steps,
// the sample named where this kalhost finds it.
std::string FirstContactUsage()
{
    std::filesystem::path sample = FindPackageFile("samples/anova.kal", ProgramDirectory());
    // Named from where the user stands when that is shorter (a clone's root).
    std::error_code error;
    if (const auto near = std::filesystem::relative(sample, std::filesystem::current_path(), error);
        !error && !near.empty() && *near.begin() != "..")
        sample = near;
    const auto example = [](const std::string& command, const std::string& what) {
        constexpr std::size_t kWhatColumn = 44;
        return "  " + command + std::string(command.size() < kWhatColumn ? kWhatColumn - command.size() : 1, ' ') +
               what + "\n";
    };
    return "Usage: kalhost [options] list|open|play|commands|store-dump ...   (kalhost --help tells more)\n\n" +
           example("kalhost list --available", "the analyses you can open, with their ids") +
           example("kalhost --data my.csv open 2008 --gui", "an analysis of variance on your CSV, in a window") +
           example("kalhost play " + sample.string(), "a sample session: its command lines are printed") +
           "\nWithout --data the built-in sample data sheet is open.\n";
}

// An option given with nothing in it would otherwise be taken as not given
// at all: the run would use the sample data, no store, the default module.
std::string EmptyValue(const CLI::App& app, const Options& options)
{
    const std::pair<const char*, const std::string*> valued[] = {{"--data", &options.dataFile},
                                                                 {"--store", &options.storeFile},
                                                                 {"--module", &options.modulePath},
                                                                 {"--decimal", &options.decimal},
                                                                 {"--module-state", &options.moduleState}};
    for (const auto& [name, value] : valued)
        if (app.get_option(name)->count() > 0 && value->empty())
            return std::string(name) + " needs a value; an empty one is not one";
    if (app.get_option("--categorical")->count() > 0) {
        const auto& names = options.categorical;
        if (names.empty() || std::any_of(names.begin(), names.end(), [](const std::string& n) {
                return n.find_first_not_of(" \t") == std::string::npos;
            }))
            return "--categorical takes variable names separated by commas (A,B), and no name may be empty";
    }
    return {};
}

// Output that did not reach its file (a full disk, a closed pipe) is a
// failure of the run, not a silent loss.
int CheckOutput(int status)
{
    std::cout.flush();
    std::wcout.flush();
    if (std::cout && std::wcout)
        return status;
    std::cerr << "kalhost: standard output cannot be written" << std::endl;
    return kExitUsage;
}

} // namespace

int Run(int argc, char** argv)
{
    // The module writes its trace line to the wide stream; unsynchronised
    // streams let narrow and wide output share standard output.
    std::ios::sync_with_stdio(false);

    CLI::App app{"kalhost: the reference host of the statistics-dialogs module KalDlgStat2.\n"
                 "Without --data the built-in sample data sheet is open."};
    app.require_subcommand(1, 1);
    app.fallthrough();
    app.footer(kFooter);
    app.set_version_flag("--version", std::string("kalhost ") + KAL_VERSION);
    Options options;
    app.add_option("--data", options.dataFile, "CSV data file to open instead of the built-in sample");
    app.add_flag("--no-data", options.noData, "open no data sheet");
    std::string categorical;
    app.add_option("--categorical", categorical, "variables the data sheet marks categorical (A,B)");
    app.add_flag("--matrix", options.matrix, "the open data is a matrix");
    app.add_option("--store", options.storeFile, "settings store: loaded at start when it exists, saved at exit");
    app.add_flag("--write-all", options.writeAll, "write every option, defaults included");
    app.add_option("--module-state", options.moduleState, "the current command module (ANOVA, QC, ...)");
    app.add_option("--decimal", options.decimal, "decimal separator of numbers in commands (one character)");
    app.add_option("--module", options.modulePath, "the module library to load (default: the one beside kalhost)");

    auto* list =
        app.add_subcommand("list", "the menu commands: id, menu path and title, handler, dialog, settings, status");
    list->add_flag("--available", options.availableOnly, "only the commands whose analysis this module holds");
    auto* open = app.add_subcommand("open", "send menu command ID and run the dialog it opens");
    open->add_option("ID", options.commandId, "menu command id")->required();
    open->add_option("--actions", options.actionsFile, "action script for the dialog (FILE, or - for standard input)");
    auto* gui = open->add_flag("--gui", options.gui, "show the dialog in a window (Qt)");
    open->add_option("--screenshot", options.screenshotFile,
                     "with --gui: render the dialog to FILE (.png, .jpg, ...), no display needed")
        ->needs(gui);
    auto* play = app.add_subcommand("play", "several dialog sessions from one script (open ID, actions, ok)");
    play->add_option("FILE", options.playFile, "the script, or - for standard input")->required();
    auto* commands = app.add_subcommand(
        "commands", "print the lines the settings stored for ID write when their dialog is confirmed; no dialog "
                    "is shown");
    commands->add_option("ID", options.commandId, "menu command id")->required();
    auto* dump = app.add_subcommand("store-dump", "show a settings store: its entries and the lines they write");
    dump->add_option("FILE", options.dumpFile, "the settings store file")->required();
    for (CLI::App* sub : {list, open, play, commands, dump})
        sub->footer(kFooter);

    const std::string word = SubcommandWord(argc, argv);
    if (word.empty() && !AsksForHelpOrVersion(argc, argv)) {
        std::cout << FirstContactUsage();
        return CheckOutput(kExitUsage);
    }
    if (!word.empty() && std::find(std::begin(kSubcommands), std::end(kSubcommands), word) == std::end(kSubcommands)) {
        std::cerr << "kalhost: unknown subcommand \"" << word
                  << "\"; the subcommands are list, open, play, commands and store-dump (kalhost --help)" << std::endl;
        return kExitUsage;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        return CheckOutput(app.exit(e) == 0 ? kExitDone : kExitUsage);
    }
    for (std::size_t start = 0; !categorical.empty() && start <= categorical.size();) {
        const std::size_t comma = std::min(categorical.find(',', start), categorical.size());
        options.categorical.push_back(categorical.substr(start, comma - start));
        start = comma + 1;
    }
    if (const std::string why = EmptyValue(app, options); !why.empty()) {
        std::cerr << "kalhost: " << why << std::endl;
        return kExitUsage;
    }

    try {
        if (*dump) {
            // A dump reads entries through the module's settings classes.
            // The entries' lines are written as `commands` writes them: on
            // the data given, else the sample sheet.
            Options plain = options;
            plain.storeFile.clear();
            Session session(plain, Session::Parse::ResourcesFirst);
            return CheckOutput(DumpStore(session, options.dumpFile));
        }
        // `list` shows what the module says of itself: no resource is needed.
        Session session(options, *list ? Session::Parse::ResourcesOnUse : Session::Parse::ResourcesFirst);
        HelpScope help(session, &HelpScope::Print);
        int status = kExitUsage;
        try {
            if (*list)
                status = ListCommands(session, options.availableOnly);
            else if (*open)
                status = options.gui ? OpenInWindow(session, options, argc, argv) : OpenHeadless(session, options);
            else if (*play)
                status = Play(session, options);
            else if (*commands)
                status = PrintCommands(session, options.commandId);
        } catch (const std::exception& e) {
            std::cout.flush();
            std::cerr << "kalhost: " << Printable(e.what()) << std::endl;
        }
        // What the user confirmed before any failure is kept.
        if (!session.SaveStore() && status == kExitDone)
            status = kExitUsage;
        return CheckOutput(status);
    } catch (const std::exception& e) {
        std::cout.flush();
        std::cerr << "kalhost: " << Printable(e.what()) << std::endl;
        return CheckOutput(kExitUsage);
    }
}

} // namespace kalhost
