// Runs a fuzz target over files without libFuzzer, so that builds with any
// compiler replay the seed corpus as a test. Arguments are files or
// directories of inputs.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    std::size_t runs = 0;
    const auto run = [&runs](const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        const std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++runs;
    };
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
                if (entry.is_regular_file())
                    run(entry.path());
        } else {
            run(path);
        }
    }
    std::printf("%zu inputs ran clean\n", runs);
    return runs > 0 ? 0 : 1;
}
