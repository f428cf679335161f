// Runs a program and collects its exit status and output, for end-to-end
// tests of kalhost.
#pragma once

#include <string>
#include <vector>

namespace kaltest {

struct ProcessResult {
    int status = -1; // exit status, or -1 when the program did not exit normally
    std::string out;
    std::string err;
    long peakKiB = 0; // the largest resident set the program reached
};

// Runs `program` with `args`, feeding `input` to its standard input.
ProcessResult RunProcess(const std::string& program, const std::vector<std::string>& args,
                         const std::string& input = {});

// A fresh directory under the system's temporary directory, removed with
// the object.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& Path() const { return m_path; }
    // Writes `text` to `name` inside the directory; returns its path.
    std::string Write(const std::string& name, const std::string& text) const;

private:
    std::string m_path;
};

} // namespace kaltest
