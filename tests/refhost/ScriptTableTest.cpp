// The dialog sessions under tests/scripts, each played by kalhost and held to
// the lines written into it. A script is an ordinary action script; its
// comments say what it should end with:
//   # kalhost OPTIONS     options before `play` (a --data file from the top of the sources)
//   # status N            the exit status (0 when not given)
//   #> LINE               a line on standard output, in order
//   #! LINE               a line on standard error, in order (none when not given)
// so a session reads top to bottom with what it writes.
#include "tests/support/Kalhost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

using namespace kaltest;

namespace {

struct Expected {
    std::vector<std::string> options;
    int status = 0;
    std::string out, err;
};

Expected Read(const std::filesystem::path& script)
{
    Expected e;
    std::ifstream in(script);
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("#> ") || line == "#>")
            e.out += line.substr(std::min<std::size_t>(3, line.size())) + "\n";
        else if (line.starts_with("#! "))
            e.err += line.substr(3) + "\n";
        else if (line.starts_with("# status "))
            e.status = std::stoi(line.substr(9));
        else if (line.starts_with("# kalhost ")) {
            std::istringstream words(line.substr(10));
            for (std::string word; words >> word;)
                e.options.push_back(!e.options.empty() && e.options.back() == "--data"
                                        ? std::string(KAL_SOURCE_DIR) + "/" + word
                                        : word);
        }
    }
    return e;
}

std::vector<std::filesystem::path> Scripts()
{
    std::vector<std::filesystem::path> scripts;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(KAL_SOURCE_DIR) + "/tests/scripts"))
        if (entry.path().extension() == ".kal")
            scripts.push_back(entry.path());
    std::sort(scripts.begin(), scripts.end());
    return scripts;
}

} // namespace

// One test over the folder, so that a script added to it runs at once.
TEST(ScriptTable, EverySessionWritesWhatItSays)
{
    const auto scripts = Scripts();
    ASSERT_FALSE(scripts.empty());
    for (const auto& script : scripts) {
        SCOPED_TRACE(script.filename().string());
        const Expected expected = Read(script);
        std::vector<std::string> args = expected.options;
        args.insert(args.end(), {"play", script.string()});
        auto r = Kalhost(args);
        // Messages about a line name the script as given; the table names
        // it by its file name.
        for (auto at = r.err.find(script.string()); at != std::string::npos; at = r.err.find(script.string()))
            r.err.replace(at, script.string().size(), script.filename().string());
        EXPECT_EQ(r.status, expected.status) << r.err;
        EXPECT_EQ(r.out, expected.out);
        EXPECT_EQ(r.err, expected.err);
    }
}
