// The layers include only downwards: platform, host, framework, the
// analyses (private), the handlers (Msg), the module object (Source). All
// of them use the standard library alone; third-party libraries serve the
// reference host and the tests.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

// What each layer may include of the project ("ids" are the headers
// generated from the dialog templates).
const std::map<std::string, std::set<std::string>> kAllowed = {
    {"platform", {"platform"}},
    {"host", {"platform", "host"}},
    {"framework", {"platform", "host", "framework", "ids"}},
    {"private", {"platform", "host", "framework", "ids", "private"}},
    {"Msg", {"platform", "host", "framework", "ids", "private", "Msg"}},
    {"Source", {"platform", "host", "framework", "ids", "private", "Msg", "Source"}},
};

// System headers beyond the C++ library that the lower layers use.
const std::set<std::string> kSystemHeaders = {"dlfcn.h"};

bool IsStandardHeader(const std::string& name)
{
    // The C++ library's headers have no extension and no folder.
    return name.find('.') == std::string::npos && name.find('/') == std::string::npos;
}

} // namespace

TEST(Layering, EveryLayerIncludesOnlyTheLayersBelowItAndTheStandardLibrary)
{
    const std::regex include(R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re");
    int files = 0;
    for (const auto& [layer, allowed] : kAllowed) {
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(KAL_SOURCE_DIR) / layer)) {
            const auto extension = entry.path().extension();
            if (extension != ".h" && extension != ".cpp")
                continue;
            ++files;
            std::ifstream in(entry.path());
            int number = 0;
            for (std::string line; std::getline(in, line);) {
                ++number;
                std::smatch m;
                if (!std::regex_search(line, m, include))
                    continue;
                const std::string name = m[2];
                const std::string where = entry.path().string() + ":" + std::to_string(number) + ": " + name;
                if (m[1] == "<") {
                    EXPECT_TRUE(IsStandardHeader(name) || kSystemHeaders.count(name)) << where;
                    continue;
                }
                const std::string top = name.substr(0, name.find('/'));
                EXPECT_TRUE(allowed.count(top)) << where;
            }
        }
    }
    EXPECT_GT(files, 100);
}
