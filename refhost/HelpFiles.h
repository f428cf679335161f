// Where the help of a dialog is: the host's menu names a topic for each
// analysis, a document of the package's docs and a section of it
// ("commands.md#linear-regression-2051"), and kalhost finds that document
// in the installed tree it runs from or, in a build tree, in the sources
// the tree was configured from.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kalhost {

struct HelpDocument {
    std::string topic;                           // as the menu names it; empty: no help for the command
    std::filesystem::path file;                  // the document found, empty when none was
    std::string anchor;                          // the section within it, without '#'
    std::vector<std::filesystem::path> searched; // where the document was looked for

    bool Found() const { return !file.empty(); }
    // file:///.../commands.md#anchor
    std::string Url() const;
    // One line for people: the topic and the file, or why there is none.
    std::string Describe() const;
};

// Looks for the document of `topic` for a kalhost in `programDirectory`:
// the installed docs (DOCDIR beside the program's BINDIR), then the docs of
// the source tree a build tree was configured from (its CMakeCache.txt).
HelpDocument FindHelpDocument(const std::string& topic, const std::filesystem::path& programDirectory);

// A file the package installs beside its docs ("samples/anova.kal"): in the
// installed tree, else in the source tree of a build tree; the name as
// given when neither holds it.
std::filesystem::path FindPackageFile(const std::string& name, const std::filesystem::path& programDirectory);

// The directory of the running program.
std::filesystem::path ProgramDirectory();

} // namespace kalhost
