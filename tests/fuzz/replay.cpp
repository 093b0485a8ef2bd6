// Runs a fuzz target over the files of folders, without a fuzzer: what was found before stays
// tested by every build.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/fuzz/input.hpp"

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    int replayed = 0;
    for (int index = 1; index < argc; ++index) {
        for (const auto& file : fs::directory_iterator(argv[index])) {
            std::ifstream stream(file.path(), std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
            std::printf("%s\n", file.path().filename().string().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
            ++replayed;
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
