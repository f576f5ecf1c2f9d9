#include "foundation/FatalError.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace brindlex {
namespace {

std::function<void(const std::string&)>& fatalErrorHandler()
{
    static std::function<void(const std::string&)> handler;
    return handler;
}

} // namespace

void setFatalErrorHandler(std::function<void(const std::string&)> handler)
{
    fatalErrorHandler() = std::move(handler);
}

void fatalError(const std::string& message)
{
    // A handler that fails fatally itself must not be entered again.
    if (const auto handler = std::exchange(fatalErrorHandler(), nullptr))
        handler(message);
    else
        std::fprintf(stderr, "%s\n", message.c_str());
    std::abort();
}

} // namespace brindlex
