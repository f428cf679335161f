// kalhost as the end-to-end tests run it: the built program (KALHOST_PATH,
// defined by each test target), the menu rows it lists as available, and
// the pages of a dialog a user can turn to.
#pragma once

#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace kaltest {

inline ProcessResult Kalhost(const std::vector<std::string>& args, const std::string& input = {})
{
    return RunProcess(KALHOST_PATH, args, input);
}

// Under the sanitizers every kalhost run costs a few hundred milliseconds.
// A sweep that runs code the other sweeps already ran, only under other
// inputs (preferences, the help of every row), is left to the plain build.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kUnderSanitizers = true;
#elif defined(__has_feature)
inline constexpr bool kUnderSanitizers = __has_feature(address_sanitizer);
#else
inline constexpr bool kUnderSanitizers = false;
#endif

// The ids `kalhost list` shows as available.
inline std::vector<std::string> AvailableRows()
{
    std::vector<std::string> ids;
    std::istringstream lines(Kalhost({"list"}).out);
    for (std::string line; std::getline(lines, line);)
        if (line.ends_with(" available") && !line.ends_with("not available"))
            ids.push_back(line.substr(0, line.find(' ')));
    return ids;
}

// The pages a user can turn to: "page N" works for them. A dialog without
// pages has the one page it is; a page out of use must say so.
inline std::vector<int> ReachablePages(const std::string& id)
{
    std::vector<int> pages;
    for (int page = 0; page < 50; ++page) {
        const auto r = Kalhost({"open", id, "--actions", "-"}, "page " + std::to_string(page) + "\ncancel\n");
        if (r.status == 1) {
            pages.push_back(page);
            continue;
        }
        if (r.err.find("no page") != std::string::npos || r.err.find("has no pages") != std::string::npos)
            break;
        EXPECT_NE(r.err.find("not available"), std::string::npos) << "page " << page << ": " << r.err;
    }
    return pages;
}

} // namespace kaltest
