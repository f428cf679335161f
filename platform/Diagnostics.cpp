#include "platform/Diagnostics.h"

#include <iostream>
#include <utility>

namespace kal {

namespace {

AssertionSink& Sink()
{
    static AssertionSink sink;
    return sink;
}

} // namespace

void ReportAssertion(const std::string& file, int line, const std::string& detail)
{
    if (const auto& sink = Sink()) {
        sink(file, line);
        return;
    }
    std::cerr << "assertion: " << file << " line " << line << (detail.empty() ? "" : ": ") << detail << std::endl;
}

AssertionSink SetAssertionSink(AssertionSink sink)
{
    return std::exchange(Sink(), std::move(sink));
}

} // namespace kal
