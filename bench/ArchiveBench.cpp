// Storing and loading large lists, against copying the same bytes.
#include "bench/BenchRatio.h"
#include "framework/GUIArray.h"

#include <cstring>
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

// `baselines` names what a run is compared with: the memcpy of its bytes
// and, for the large size, the same operation at the small size (a linear
// operation gives 10).
template <class List>
void Store(benchmark::State& state, List list, const std::string& baselines)
{
    for (auto _ : state) {
        CMemFile file;
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
    // The archive's bytes are in memory once; each load reads them again.
    CMemFile file(Stored(list));
    for (auto _ : state) {
        file.SeekToBegin();
        CArchive ar(&file, CArchive::load);
        List loaded;
        loaded.Serialize(ar);
        benchmark::DoNotOptimize(loaded.GetSize());
    }
    state.SetLabel(baselines);
}

void Register()
{
    for (const int n : {kSmall, kLarge}) {
        const std::size_t variableBytes = static_cast<std::size_t>(n) * CGUIDataVariable::kBlockSize;
        const std::size_t intBytes = static_cast<std::size_t>(n) * sizeof(int);
        const auto memVars = Name("memcpy_variable_bytes", n);
        const auto memInts = Name("memcpy_int_bytes", n);
        benchmark::RegisterBenchmark(memVars.c_str(), MemcpyBaseline, variableBytes)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(memInts.c_str(), MemcpyBaseline, intBytes)->Unit(benchmark::kMillisecond);
        const auto baselines = [n](const std::string& memcpyName, const char* what) {
            std::string label = "baseline=" + memcpyName;
            if (n == kLarge)
                label += ";baseline=" + Name(what, kSmall);
            return label;
        };
        benchmark::RegisterBenchmark(Name("store_variable_list", n).c_str(), Store<CGUIArray<CGUIDataVariable>>,
                                     Variables(n), baselines(memVars, "store_variable_list"))
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(Name("load_variable_list", n).c_str(), Load<CGUIArray<CGUIDataVariable>>,
                                     Variables(n), baselines(memVars, "load_variable_list"))
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(Name("store_int_list", n).c_str(), Store<CGUIArray<int>>, Ints(n),
                                     baselines(memInts, "store_int_list"))
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(Name("load_int_list", n).c_str(), Load<CGUIArray<int>>, Ints(n),
                                     baselines(memInts, "load_int_list"))
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char** argv)
{
    Register();
    return kalbench::RunBenchmarks(argc, argv);
}
