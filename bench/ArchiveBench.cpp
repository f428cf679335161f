// Storing and loading large lists, against copying the same bytes.
#include "bench/BenchRatio.h"
#include "framework/GUIArray.h"

#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr int kSmall = 100'000;
constexpr int kLarge = 1'000'000;

CGUIArray<CGUIDataVariable> Variables(int n)
{
    CGUIArray<CGUIDataVariable> list;
    list.Reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        list.Add(CGUIDataVariable(u"V", NmsEnum::VT_NUMERIC, i, {}, i & 1));
    return list;
}

CGUIArray<int> Ints(int n)
{
    CGUIArray<int> list;
    list.Reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        list.Add(i * 7);
    return list;
}

template <class List>
std::vector<BYTE> Stored(List& list)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    list.Serialize(ar);
    ar.Close();
    return file.Detach();
}

std::string Name(const char* what, int n)
{
    return std::string(what) + "/" + std::to_string(n);
}

void MemcpyBaseline(benchmark::State& state, std::size_t bytes)
{
    std::vector<char> from(bytes, 1), to(bytes);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

template <class List>
void Store(benchmark::State& state, List list, const std::string& baselines)
{
    // Each store writes over the same memory file, as the memcpy baseline
    // writes over the same buffer: what is timed is the archive's work.
    CMemFile file;
    for (auto _ : state) {
        file.SeekToBegin();
        CArchive ar(&file, CArchive::store);
        list.Serialize(ar);
        ar.Close();
        benchmark::DoNotOptimize(file.Data().data());
    }
    state.SetLabel(baselines);
}

template <class List>
void Load(benchmark::State& state, List list, const std::string& baselines)
{
    // The archive's bytes are in memory once; each load reads them again
    // into a fresh list. Freeing the previous list is not part of a load
    // and happens outside the timing.
    CMemFile file(Stored(list));
    std::optional<List> loaded;
    for (auto _ : state) {
        state.PauseTiming();
        loaded.emplace();
        file.SeekToBegin();
        state.ResumeTiming();
        CArchive ar(&file, CArchive::load);
        loaded->Serialize(ar);
        benchmark::DoNotOptimize(loaded->GetSize());
    }
    state.SetLabel(baselines);
}

// The copy of the same bytes each list is held to (0: no goal), at 1M.
constexpr double kVariableGoal = 2.0;
constexpr double kIntLoadGoal = 1.5;

void Register()
{
    for (const int n : {kSmall, kLarge}) {
        const std::size_t variableBytes = static_cast<std::size_t>(n) * CGUIDataVariable::kBlockSize;
        const std::size_t intBytes = static_cast<std::size_t>(n) * sizeof(int);
        const auto memVars = Name("memcpy_variable_bytes", n);
        const auto memInts = Name("memcpy_int_bytes", n);
        benchmark::RegisterBenchmark(memVars.c_str(), MemcpyBaseline, variableBytes)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(memInts.c_str(), MemcpyBaseline, intBytes)->Unit(benchmark::kMillisecond);
        // Against the memcpy of its bytes and, at the large size, against
        // the same operation at the small size (linear work gives 10).
        const auto against = [n](const std::string& memcpyName, const char* what, double goal) {
            if (n != kLarge)
                return kalbench::Baseline(memcpyName);
            return kalbench::Label({kalbench::Baseline(memcpyName, goal), kalbench::Baseline(Name(what, kSmall))});
        };
        benchmark::RegisterBenchmark(Name("store_variable_list", n).c_str(), Store<CGUIArray<CGUIDataVariable>>,
                                     Variables(n), against(memVars, "store_variable_list", kVariableGoal))
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(Name("load_variable_list", n).c_str(), Load<CGUIArray<CGUIDataVariable>>,
                                     Variables(n), against(memVars, "load_variable_list", kVariableGoal))
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(Name("store_int_list", n).c_str(), Store<CGUIArray<int>>, Ints(n),
                                     against(memInts, "store_int_list", 0))
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(Name("load_int_list", n).c_str(), Load<CGUIArray<int>>, Ints(n),
                                     against(memInts, "load_int_list", kIntLoadGoal))
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char** argv)
{
    Register();
    return kalbench::RunBenchmarks(argc, argv);
}
