#include "refhost/HelpFiles.h"

#include <fstream>

namespace kalhost {

namespace {

// The source directory a build tree was configured from, or empty.
std::filesystem::path ConfiguredSourceDirectory(const std::filesystem::path& buildTree)
{
    std::ifstream cache(buildTree / "CMakeCache.txt");
    const std::string key = "CMAKE_HOME_DIRECTORY:INTERNAL=";
    for (std::string line; std::getline(cache, line);)
        if (line.rfind(key, 0) == 0)
            return line.substr(key.size());
    return {};
}

// Percent-encodes what a file URL's path may not hold as it is.
std::string UrlPath(const std::string& path)
{
    static const char* hex = "0123456789ABCDEF";
    std::string encoded;
    for (const unsigned char c : path) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                           std::string_view("/-._~").find(static_cast<char>(c)) != std::string_view::npos;
        if (plain) {
            encoded += static_cast<char>(c);
        } else {
            encoded += '%';
            encoded += hex[c >> 4];
            encoded += hex[c & 15];
        }
    }
    return encoded;
}

} // namespace

std::string HelpDocument::Url() const
{
    if (!Found())
        return {};
    return "file://" + UrlPath(std::filesystem::absolute(file).lexically_normal().string()) +
           (anchor.empty() ? std::string() : "#" + anchor);
}

std::string HelpDocument::Describe() const
{
    if (topic.empty())
        return "there is no help for this dialog";
    if (Found())
        return topic + " (" + file.string() + ")";
    std::string places;
    for (std::size_t i = 0; i < searched.size(); ++i)
        places += (i == 0 ? "" : i + 1 == searched.size() ? " or " : ", ") + searched[i].string();
    return topic + ": the document is not installed here (looked for " +
           (places.empty() ? std::string("it nowhere") : places) + ")";
}

namespace {

// Where a file of the package's docs may be: the installed docs, then the
// source tree a build tree was configured from (`sourceFolder` there).
std::vector<std::filesystem::path> DocCandidates(const std::string& name, const std::filesystem::path& programDirectory,
                                                 const std::string& sourceFolder)
{
    std::vector<std::filesystem::path> candidates{
        (programDirectory / KAL_DOCDIR_FROM_BINDIR / name).lexically_normal()};
    if (const auto source = ConfiguredSourceDirectory(programDirectory.parent_path()); !source.empty())
        candidates.push_back((source / sourceFolder / name).lexically_normal());
    return candidates;
}

bool IsFile(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

} // namespace

std::filesystem::path FindPackageFile(const std::string& name, const std::filesystem::path& programDirectory)
{
    for (const auto& candidate : DocCandidates(name, programDirectory, ""))
        if (IsFile(candidate))
            return candidate;
    return name;
}

HelpDocument FindHelpDocument(const std::string& topic, const std::filesystem::path& programDirectory)
{
    HelpDocument help;
    help.topic = topic;
    if (topic.empty())
        return help;
    const std::size_t hash = topic.find('#');
    const std::string document = topic.substr(0, hash);
    help.anchor = hash == std::string::npos ? std::string() : topic.substr(hash + 1);

    for (const auto& candidate : DocCandidates(document, programDirectory, "docs")) {
        help.searched.push_back(candidate);
        if (IsFile(candidate)) {
            help.file = candidate;
            break;
        }
    }
    return help;
}

std::filesystem::path ProgramDirectory()
{
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::current_path() : self.parent_path();
}

} // namespace kalhost
