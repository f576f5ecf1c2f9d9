#include "fuzz/FuzzTarget.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

/// `PROGRAM FOLDER` gives the target every file of a corpus, in the order of their names, and then
/// nothing at all. Fails without a file.
int main(int count, char** arguments)
{
    std::vector<std::filesystem::path> files;
    for (int at = 1; at < count; ++at)
        for (const auto& file : std::filesystem::directory_iterator(arguments[at]))
            files.push_back(file.path());
    std::sort(files.begin(), files.end());
    for (const auto& file : files) {
        std::printf("%s\n", file.c_str());
        std::fflush(stdout);
        std::ifstream stream(file, std::ios::binary);
        // A copy of exactly this size lets the address sanitizer see a read beyond its end.
        const std::vector<char> bytes(std::istreambuf_iterator<char>(stream), {});
        const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    LLVMFuzzerTestOneInput(nullptr, 0);
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
