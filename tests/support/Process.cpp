#include "tests/support/Process.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace kaltest {

namespace {

std::string Slurp(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

} // namespace

ProcessResult RunProcess(const std::string& program, const std::vector<std::string>& args, const std::string& input)
{
    TempDir dir;
    const std::string in = dir.Write("stdin", input);
    const std::string out = dir.Path() + "/stdout";
    const std::string err = dir.Path() + "/stderr";

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const auto& a : args)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);

    ProcessResult result;
    pid_t pid = 0;
    if (posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        rusage usage{};
        while (wait4(pid, &status, 0, &usage) < 0) {
        }
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.peakKiB = usage.ru_maxrss;
    }
    posix_spawn_file_actions_destroy(&actions);
    result.out = Slurp(out);
    result.err = Slurp(err);
    return result;
}

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kaltest-XXXXXX").string();
    if (::mkdtemp(pattern.data()))
        m_path = pattern;
}

TempDir::~TempDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string TempDir::Write(const std::string& name, const std::string& text) const
{
    const std::string file = m_path + "/" + name;
    std::ofstream(file, std::ios::binary) << text;
    return file;
}

} // namespace kaltest
