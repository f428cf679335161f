// kalhost given what a hostile but fair user gives it: damaged and foreign
// stores, files that are not files, endless and empty inputs, scripts that
// say one thing and mean another. One table: what is given, how the run
// ends, what it says; a row's own check follows where there is more to see.
#include "private/Anova/KDGAnovaTabData.h"
#include "refhost/SettingsStore.h"
#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

using namespace kalhost;
namespace fs = std::filesystem;

namespace {

std::string Sample(const std::string& name)
{
    return std::string(KAL_SOURCE_DIR) + "/samples/" + name;
}

std::vector<BYTE> Bytes(const std::string& text)
{
    return {text.begin(), text.end()};
}

// The ANOVA settings of the samples' first session, as an entry.
StoreEntry AnovaEntry(int ssRadio = 2)
{
    CAnovaTabData settings;
    CGUIArray<CGUIDataVariable> dependent;
    dependent.Add(CGUIDataVariable(u"Y", NmsEnum::VT_NUMERIC, 2));
    settings.GetAnovaData()->SetAll({}, dependent, {}, {}, 0, 0, 0, 0, 0, u"");
    settings.GetAnovaOptionsData()->SetAll(0, 0, 0, 0, ssRadio);
    return SaveEntry(2008, settings);
}

// A store of `format` holding the ANOVA entry, framed as that format does.
std::vector<BYTE> StoreOfFormat(DWORD format)
{
    const StoreEntry entry = AnovaEntry();
    std::vector<BYTE> bytes = StoreBytes({entry});
    std::memcpy(&bytes[8], &format, 4);
    if (format != 1) {
        const DWORD check = StoreChecksum(bytes.data(), 16);
        std::memcpy(&bytes[16], &check, 4);
        return bytes;
    }
    // Format 1: count, then id, class name, record length, record.
    bytes.resize(12);
    const std::string name = entry.className;
    bytes.insert(bytes.end(), {1, 0, 0xD8, 0x07, 0, 0, static_cast<BYTE>(name.size())});
    bytes.insert(bytes.end(), name.begin(), name.end());
    const auto length = static_cast<WORD>(entry.record.size());
    bytes.insert(bytes.end(), {static_cast<BYTE>(length), static_cast<BYTE>(length >> 8)});
    bytes.insert(bytes.end(), entry.record.begin(), entry.record.end());
    return bytes;
}

void WriteFile(const std::string& path, const std::vector<BYTE>& bytes)
{
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

struct Row {
    const char* what;
    // Makes the row's files in `dir` and returns kalhost's arguments.
    std::function<std::vector<std::string>(const std::string& dir)> args;
    std::string input;
    int status;
    std::string says; // on standard error
    std::function<void(const std::string& dir, const kaltest::ProcessResult&)> then = {};
};

const std::string kStore = "/s.store";

std::vector<std::string> Store(const std::string& dir, const std::vector<BYTE>& bytes, const std::string& command)
{
    WriteFile(dir + kStore, bytes);
    return {"--store", dir + kStore, "commands", command};
}

std::vector<std::string> Play()
{
    return {"play", "-"};
}

const std::string kDefaultEstimate = "ESTIMATE / SS = TYPE3\n";

} // namespace

TEST(BadInput, EveryOneIsRefusedOrSetAsideWithASentenceAndNothingRightIsLost)
{
    const std::vector<Row> rows = {
        // ---- The settings store
        {"a flipped byte in an entry",
         [](const std::string& d) {
             std::vector<BYTE> bytes = StoreBytes({AnovaEntry(), {2052, "COther", {1, 2, 3}}});
             bytes[60] ^= 0x10;
             return Store(d, bytes, "2008");
         },
         "", 0, "entry for command 2008: damaged (its checksum does not match",
         [](const std::string& d, const kaltest::ProcessResult& r) {
             EXPECT_NE(r.out.find("DEPEND \n"), std::string::npos) << r.out; // the defaults
             EXPECT_EQ(ReadStoreFile(d + kStore).entries.size(), 1u);        // the intact one stays
             EXPECT_EQ(ReadStoreFile(d + kStore + ".unreadable").damaged.size(), 1u);
         }},
        {"a record with a radio index its group lacks",
         [](const std::string& d) { return Store(d, StoreBytes({AnovaEntry(9)}), "2008"); }, "", 0,
         "entry for command 2008 (CAnovaTabData): holds a value its dialog cannot show: control 1084",
         [](const std::string&, const kaltest::ProcessResult& r) {
             EXPECT_NE(r.out.find(kDefaultEstimate), std::string::npos) << r.out;
             EXPECT_EQ(r.err.find("assertion"), std::string::npos) << r.err;
         }},
        {"a store of format 1", [](const std::string& d) { return Store(d, StoreOfFormat(1), "2008"); }, "", 0, "",
         [](const std::string& d, const kaltest::ProcessResult& r) {
             EXPECT_NE(r.out.find("DEPEND Y\n"), std::string::npos) << r.out;
             EXPECT_EQ(ReadStoreFile(d + kStore).format, 1u); // nothing confirmed: not rewritten
         }},
        {"a store of a newer format", [](const std::string& d) { return Store(d, StoreOfFormat(3), "2008"); }, "", 2,
         "is a settings store of format 3, which this kalhost (format 2) cannot read"},
        {"a CSV file as the store", [](const std::string& d) { return Store(d, Bytes("a,b\n1,2\n"), "2008"); }, "", 2,
         "is not a kalhost settings store",
         [](const std::string& d, const kaltest::ProcessResult&) {
             EXPECT_EQ(fs::file_size(d + kStore), 8u);
             EXPECT_FALSE(fs::exists(d + kStore + ".unreadable"));
         }},
        {"a device as the store",
         [](const std::string&) {
             return std::vector<std::string>{"--store", "/dev/null", "list"};
         },
         "", 2, "/dev/null is a device, not a settings store"},
        {"a pipe as the store",
         [](const std::string& d) {
             ::mkfifo((d + "/fifo").c_str(), 0600);
             return std::vector<std::string>{"--store", d + "/fifo", "list"};
         },
         "", 2, "is a pipe, not a settings store"},
        {"a directory as the store",
         [](const std::string& d) {
             return std::vector<std::string>{"--store", d, "list"};
         },
         "", 2, "is a directory, not a settings store"},
        {"a store in a folder that does not exist",
         [](const std::string& d) {
             return std::vector<std::string>{"--store", d + "/no/s.store", "list"};
         },
         "", 2, "its folder "},
        {"a store that cannot be saved at exit",
         [](const std::string& d) {
             return std::vector<std::string>{"-c",
                                             "trap '' XFSZ; ulimit -f 1; exec \"$0\" \"$@\"",
                                             KALHOST_PATH,
                                             "--store",
                                             d + kStore,
                                             "play",
                                             Sample("anova.kal")};
         },
         "", 2, "cannot be saved: the data cannot be written"},
        {"a store of another user, rewritten",
         [](const std::string& d) {
             WriteFile(d + kStore, StoreBytes({}));
             // Only a privileged run can give the store away.
             const bool privileged = ::geteuid() == 0;
             EXPECT_TRUE(!privileged || ::chown((d + kStore).c_str(), 4242, 4243) == 0);
             ::chmod((d + kStore).c_str(), 0640);
             return std::vector<std::string>{"--store", d + kStore, "play", Sample("anova.kal")};
         },
         "", 0, "",
         [](const std::string& d, const kaltest::ProcessResult&) {
             struct stat info {};
             ASSERT_EQ(::stat((d + kStore).c_str(), &info), 0);
             EXPECT_EQ(info.st_mode & 07777, 0640u);
             EXPECT_EQ(info.st_uid, ::geteuid() == 0 ? 4242u : ::geteuid());
             EXPECT_EQ(ReadStoreFile(d + kStore).entries.size(), 1u);
         }},
        {"a read-only store, used and kept as it is",
         [](const std::string& d) {
             WriteFile(d + kStore, StoreBytes({AnovaEntry()}));
             ::chmod((d + kStore).c_str(), 0444);
             return std::vector<std::string>{"--store", d + kStore, "play", Sample("anova.kal")};
         },
         "", 0, "it is read-only, so the choices of this session will not be saved",
         [](const std::string& d, const kaltest::ProcessResult& r) {
             EXPECT_NE(r.out.find("ANOVA"), std::string::npos) << r.out;
             std::ifstream in(d + kStore, std::ios::binary);
             const std::vector<BYTE> after{std::istreambuf_iterator<char>(in), {}};
             EXPECT_EQ(after, StoreBytes({AnovaEntry()})); // byte for byte as it was
         }},
        {"an empty --store",
         [](const std::string&) {
             return std::vector<std::string>{"--store", "", "list"};
         },
         "", 2, "--store needs a value"},
        // ---- Data files and other inputs
        {"an endless device as data",
         [](const std::string&) {
             return std::vector<std::string>{"--data", "/dev/zero", "list"};
         },
         "", 2, "/dev/zero: cannot be read: it is not a regular file"},
        {"a directory as data",
         [](const std::string& d) {
             return std::vector<std::string>{"--data", d, "list"};
         },
         "", 2, "cannot be read: it is a directory"},
        {"--no-data with --data",
         [](const std::string&) {
             return std::vector<std::string>{"--no-data", "--data", Sample("plants.csv"), "list"};
         },
         "", 2, "--no-data cannot go with --data"},
        {"an empty --data",
         [](const std::string&) {
             return std::vector<std::string>{"--data", "", "list"};
         },
         "", 2, "--data needs a value"},
        {"an empty --module",
         [](const std::string&) {
             return std::vector<std::string>{"--module", "", "list"};
         },
         "", 2, "--module needs a value"},
        {"an empty --decimal",
         [](const std::string&) {
             return std::vector<std::string>{"--decimal", "", "commands", "2008"};
         },
         "", 2, "--decimal needs a value"},
        {"a module that is not there",
         [](const std::string& d) {
             return std::vector<std::string>{"--module", d + "/none.so", "list"};
         },
         "", 2, "cannot load module"},
        {"a module that is not a library",
         [](const std::string&) {
             return std::vector<std::string>{"--module", Sample("plants.csv"), "list"};
         },
         "", 2, "cannot load module"},
        {"only commas as --categorical",
         [](const std::string&) {
             return std::vector<std::string>{"--categorical", ",,,", "list"};
         },
         "", 2, "no name may be empty"},
        {"a quoted value that never ends",
         [](const std::string& d) {
             std::ofstream(d + "/q.csv") << "a,b\n1,\"" << std::string(2 << 20, 'x') << "\nmore\n";
             return std::vector<std::string>{"--data", d + "/q.csv", "list"};
         },
         "", 2, "line 2, column 2: a value longer than 1 MiB"},
        {"a data file with CR line ends",
         [](const std::string& d) {
             std::ofstream(d + "/cr.csv") << "y,g$\r1,a\r2,b\r";
             return std::vector<std::string>{"--data", d + "/cr.csv", "play", "-"};
         },
         "open 2008\rselect 1075 y\rclick 1067\rexpect items 1073 g$\rok\r", 0, ""},
        // ---- Scripts
        {"an endless device as the script",
         [](const std::string&) {
             return std::vector<std::string>{"play", "/dev/zero"};
         },
         "", 2, "it is not a regular file"},
        {"an endless device as the actions",
         [](const std::string&) {
             return std::vector<std::string>{"open", "2008", "--actions", "/dev/zero"};
         },
         "", 2, "it is not a regular file"},
        {"a directory as the script",
         [](const std::string& d) {
             return std::vector<std::string>{"play", d};
         },
         "", 2, "cannot be read: it is a directory"},
        {"a script longer than any script needs", [](const std::string&) { return Play(); },
         std::string((64 << 20) + 1, '#'), 2, "standard input is longer than 64 MiB"},
        {"a directory as standard input",
         [](const std::string& d) {
             return std::vector<std::string>{"-c", "exec \"$0\" play - < \"$1\"", KALHOST_PATH, d};
         },
         "", 2, "standard input cannot be read: Is a directory"},
        {"an escape sequence in a script line", [](const std::string&) { return Play(); }, "\x1b[31mred\n", 2,
         "unknown action \"\\x1b[31mred\"",
         [](const std::string&, const kaltest::ProcessResult& r) { EXPECT_EQ(r.err.find('\x1b'), std::string::npos); }},
        {"a 10 MB unknown verb", [](const std::string&) { return Play(); }, std::string(10 << 20, 'v'), 2,
         "unknown action \"vvvv",
         [](const std::string&, const kaltest::ProcessResult& r) { EXPECT_LT(r.err.size(), 300u); }},
        {"open while a dialog is open", [](const std::string&) { return Play(); },
         "open 2008\nopen 2008\nselect 1075 Y\nclick 1067\nok\n", 0,
         "line 2: the dialog opened at line 1 is still open"},
        {"a play that ends with a dialog open", [](const std::string&) { return Play(); }, "open 2008\nselect 1075 Y\n",
         1, "ended with the dialog opened at line 1 still open"},
        {"a whole number too large to hold", [](const std::string&) { return Play(); },
         "open 2051\nselect 4101 Y\nclick 4104\npage 1\nclick 4172\ntype 4156 99999999999\nok\ncancel\n", 1,
         "message 2011: Please enter a whole number."},
        {"a menu command the list's menu lacks", [](const std::string&) { return Play(); },
         "open 2008\nselect 1075 Y\nmenu 1075 4242\nok\n", 2,
         "line 3: the context menu of list 1075 has no command 4242"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        kaltest::TempDir dir;
        const auto args = row.args(dir.Path());
        const bool shell = args.front() == "-c";
        const auto r = kaltest::RunProcess(shell ? "/bin/sh" : KALHOST_PATH, args, row.input);
        EXPECT_EQ(r.status, row.status) << r.err;
        EXPECT_NE(r.err.find(row.says), std::string::npos) << r.err.substr(0, 2000);
        if (row.then)
            row.then(dir.Path(), r);
    }
}
