#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What a target does with one input: libFuzzer's entry, which the replay of a corpus calls too.
/// Ends the process when the input breaks what is held to be true of it; returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace brindlex {

inline std::string_view textOf(const std::uint8_t* bytes, std::size_t size)
{
    return {reinterpret_cast<const char*>(bytes), size};
}

/// Ends the process with the words unless they are true.
inline void require(bool isTrue, const char* words)
{
    if (isTrue)
        return;
    std::fprintf(stderr, "Not true: %s\n", words);
    std::abort();
}

} // namespace brindlex
