// Loading a wide CSV data sheet in process, against the least any reader
// must do with the same file: map it and tell, field by field, a number from
// text. The sheets have 1,000 cases and 10,000 or 100,000 variables, mostly
// one-digit cells with some longer and decimal numbers and a few text
// columns, so that both kinds of column occur.
#include "bench/BenchRatio.h"
#include "refhost/DataSheet.h"

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kCases = 1000;
constexpr int kSmall = 10'000;
constexpr int kLarge = 100'000;

// A directory of its own for the run's files, removed at exit.
class Scratch {
public:
    Scratch()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "kalbench-XXXXXX").string();
        if (::mkdtemp(pattern.data()))
            m_path = pattern;
    }
    ~Scratch()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

Scratch& ScratchDir()
{
    static Scratch dir;
    return dir;
}

void AppendCell(std::string& line, int variable, int row)
{
    if (variable % 1000 == 500) { // a text column: its values are words
        line += "g";
        line += static_cast<char>('a' + row % 5);
    } else if (variable % 10 == 3) { // a decimal
        line += std::to_string((row * 7 + variable) % 1000);
        line += '.';
        line += static_cast<char>('0' + row % 10);
    } else if (variable % 10 == 7) { // a longer whole number, sometimes negative
        if (row % 4 == 0)
            line += '-';
        line += std::to_string(1000 + (row * 13 + variable) % 90000);
    } else {
        line += static_cast<char>('0' + (row + variable) % 10);
    }
}

// The file for `variables`, written once per run.
const std::string& WideCsv(int variables)
{
    static std::string small;
    static std::string large;
    std::string& file = variables == kSmall ? small : large;
    if (!file.empty())
        return file;
    file = ScratchDir().Path() + "/wide-" + std::to_string(variables) + ".csv";
    std::ofstream out(file, std::ios::binary);
    std::string line;
    for (int v = 0; v < variables; ++v)
        line += (v ? ",V" : "V") + std::to_string(v);
    out << line << '\n';
    for (int c = 0; c < kCases; ++c) {
        line.clear();
        for (int v = 0; v < variables; ++v) {
            if (v)
                line += ',';
            AppendCell(line, v, c);
        }
        out << line << '\n';
    }
    return file;
}

// Maps the file and classifies every field: split on commas and newlines,
// a field is a number when it parses whole as a decimal number.
void MmapClassify(benchmark::State& state, int variables)
{
    const std::string& file = WideCsv(variables);
    for (auto _ : state) {
        const int fd = ::open(file.c_str(), O_RDONLY);
        struct stat info {};
        ::fstat(fd, &info);
        const auto size = static_cast<std::size_t>(info.st_size);
        void* map = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
        if (map == MAP_FAILED) {
            state.SkipWithError("mmap failed");
            break;
        }
        const char* p = static_cast<const char*>(map);
        const char* const end = p + size;
        std::size_t numbers = 0;
        std::size_t texts = 0;
        while (p < end) {
            const char* q = p;
            while (q < end && *q != ',' && *q != '\n')
                ++q;
            double value = 0;
            const auto [stop, error] = std::from_chars(p, q, value);
            if (error == std::errc() && stop == q)
                ++numbers;
            else
                ++texts;
            p = q + 1;
        }
        benchmark::DoNotOptimize(numbers);
        benchmark::DoNotOptimize(texts);
        ::munmap(map, size);
        ::close(fd);
    }
}

void LoadCsv(benchmark::State& state, int variables, const std::string& label)
{
    const std::string& file = WideCsv(variables);
    for (auto _ : state) {
        kalhost::DataSheet sheet = kalhost::DataSheet::LoadCsv(file);
        if (sheet.GetVariableCount() != variables || sheet.CaseCount() != static_cast<std::size_t>(kCases))
            state.SkipWithError("the sheet does not have the file's shape");
    }
    state.SetLabel(label);
}

std::string Name(const char* what, int n)
{
    return std::string(what) + "/" + std::to_string(n);
}

} // namespace

int main(int argc, char** argv)
{
    // Every load is held to the baseline at its size; the large one to a
    // goal, and to the small load (linear work gives 10).
    for (const int n : {kSmall, kLarge}) {
        const std::string baseline = Name("csv_mmap_classify", n);
        benchmark::RegisterBenchmark(baseline.c_str(), MmapClassify, n)->Unit(benchmark::kMillisecond);
        const std::string label =
            n == kLarge
                ? kalbench::Label({kalbench::Baseline(baseline, 2.0), kalbench::Baseline(Name("load_csv", kSmall))})
                : kalbench::Baseline(baseline);
        benchmark::RegisterBenchmark(Name("load_csv", n).c_str(), LoadCsv, n, label)->Unit(benchmark::kMillisecond);
    }
    return kalbench::RunBenchmarks(argc, argv);
}
