#include "platform/linux/network/CurlFetch.h"
#include "platform/linux/network/FetchOutcome.h"

#include <cstdio>
#include <cstdlib>

/// `brindlex-fetch URL BYTES MILLISECONDS [CERTIFICATES]`: reads one document for the program,
/// within these limits, and writes the outcome to the standard output.
int main(int count, char** arguments)
{
    using namespace brindlex;
    if (count < 4)
        return 2;
    const HttpReading::Limits limits{
        .bytes = std::strtoull(arguments[2], nullptr, 10),
        .time = std::strtod(arguments[3], nullptr) / 1'000,
    };
    const auto text
        = encodeFetchOutcome(fetch(arguments[1], limits, count > 4 ? arguments[4] : ""));
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    return isWritten && std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
