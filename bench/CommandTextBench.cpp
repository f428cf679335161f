// Writing a line of many variable names, as an analysis writes its model
// line (AddVariables into the line, then the line into the command list),
// against an ideal join of the same names: UTF-16 strings already at hand
// appended with the separator into one string reserved to the exact size.
// Plain names ("V123") are written as they are; names with a blank
// ("V 123") in single quotes, which the ideal join writes around them.
// Reported at 10,000, 100,000 and 1,000,000 names; at 1,000,000 also
// against 100,000 (linear work gives 10), and the bare look-up of every
// name through the list (variable, its texts, the name's buffer), which
// any writer of the line pays before it writes a unit.
#include "bench/BenchRatio.h"
#include "framework/GUIArray.h"
#include "framework/GUIBaseObj.h"

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr char16_t kKeyword[] = u"DEPEND ";
constexpr char16_t kSeparator[] = u" ";

struct Names {
    int count;
    bool quoted;
    std::vector<std::u16string> text;
    CGUIArray<CGUIDataVariable> list;
};

// The names of one size and kind, made once for the benchmarks that read
// them (the ideal join and the framework's line), outside their timing.
// The strings come first and the list after, each in one stretch of
// memory, as a sheet's names and a list made from them would be.
const Names& NamesOf(int count, bool quoted)
{
    static std::unique_ptr<Names> names;
    if (names && names->count == count && names->quoted == quoted)
        return *names;
    names.reset();
    names = std::make_unique<Names>(Names{count, quoted, {}, {}});
    names->text.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        names->text.push_back((quoted ? u"V " : u"V") + CString::FromNumber(i).Str());
    names->list.Reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        names->list.Add(CGUIDataVariable(CString(names->text[static_cast<std::size_t>(i)]), NmsEnum::VT_NUMERIC, i));
    return *names;
}

void CommandText(benchmark::State& state, int count, bool quoted, const std::string& label)
{
    const Names& names = NamesOf(count, quoted);
    const CGUIBaseObj settings;
    for (auto _ : state) {
        CString line(kKeyword);
        settings.AddVariables(line, names.list, kSeparator);
        CLIST<CCmdInfo> lines;
        AppendCommandLine(lines, std::move(line));
        benchmark::DoNotOptimize(lines.GetTail().m_strCommand.GetString());
    }
    state.SetLabel(label);
}

void IdealJoin(benchmark::State& state, int count, bool quoted)
{
    const Names& names = NamesOf(count, quoted);
    const std::u16string_view separator = kSeparator;
    const std::size_t quotes = quoted ? 2 : 0;
    std::size_t length = std::char_traits<char16_t>::length(kKeyword);
    for (const auto& name : names.text)
        length += name.size() + quotes + separator.size();
    for (auto _ : state) {
        std::u16string line;
        line.reserve(length);
        line += kKeyword;
        bool first = true;
        for (const auto& name : names.text) {
            if (!first)
                line += separator;
            first = false;
            if (quoted) {
                line += u'\'';
                line += name;
                line += u'\'';
            } else {
                line += name;
            }
        }
        benchmark::DoNotOptimize(line.data());
    }
}

// Only finding every name's length through the list: the memory a line of
// these names costs to read, with nothing written.
void NameLookup(benchmark::State& state, int count, bool quoted, const std::string& label)
{
    const Names& names = NamesOf(count, quoted);
    for (auto _ : state) {
        std::size_t length = 0;
        for (const auto& variable : names.list)
            length += variable.GetVariableName().Str().size();
        benchmark::DoNotOptimize(length);
    }
    state.SetLabel(label);
}

// The ideal join's time the line is held to at the largest size.
constexpr double kGoal = 2.0;
constexpr int kLarge = 1'000'000;

void Register()
{
    using kalbench::Baseline;
    for (const bool quoted : {false, true}) {
        const std::string suffix = quoted ? "_quoted/" : "/";
        const auto name = [&suffix](const char* what, int n) { return what + suffix + std::to_string(n); };
        for (const int n : {10'000, 100'000, kLarge}) {
            const std::string ideal = name("ideal_join", n);
            const std::string label =
                n < kLarge ? Baseline(ideal)
                           : kalbench::Label({Baseline(ideal, kGoal), Baseline(name("command_text", 100'000))});
            benchmark::RegisterBenchmark(ideal.c_str(), IdealJoin, n, quoted)->Unit(benchmark::kMillisecond);
            benchmark::RegisterBenchmark(name("command_text", n).c_str(), CommandText, n, quoted, label)
                ->Unit(benchmark::kMillisecond);
            if (n == kLarge)
                benchmark::RegisterBenchmark(name("name_lookup", n).c_str(), NameLookup, n, quoted, Baseline(ideal))
                    ->Unit(benchmark::kMillisecond);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    Register();
    return kalbench::RunBenchmarks(argc, argv);
}
