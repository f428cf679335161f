// Process-wide assertion sink. Framework code reports impossible states
// here and goes on; the host decides where reports go (by default
// "assertion: <file> line <n>" on standard error), tests capture them.
#pragma once

#include <functional>
#include <string>

namespace kal {

using AssertionSink = std::function<void(const std::string& file, int line)>;

// `detail` says what was wrong, for the reader of the default report
// ("assertion: <file> line <n>: <detail>"); sinks get the place only.
void ReportAssertion(const std::string& file, int line, const std::string& detail = {});

// Installs a sink and returns the one it replaces; an empty sink restores
// the default.
AssertionSink SetAssertionSink(AssertionSink sink);

} // namespace kal
