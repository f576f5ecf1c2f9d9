#pragma once

#include "foundation/Cases.h"
#include "platform/HttpReading.h"
#include "platform/MainThread.h"

#include <map>
#include <string>
#include <vector>

namespace brindlex {

/// Reads from servers that reply what a test says.
class SimulatedHttpReading : public HttpReading {
public:
    struct Content {
        std::string text{};
    };
    struct Status {
        int code = 404;
    };
    struct Redirect {
        std::string url{};
    };
    /// The server takes the request and says nothing.
    struct Silence { };
    using Reply = Cases<Content, Status, Redirect, Silence>;

    explicit SimulatedHttpReading(MainThread& mainThread) : mainThread_(mainThread) { }

    Subscription read(const std::string& url, const Limits& limits, Finished finished) override;

    /// What there is at each address; at all others there is no server.
    std::map<std::string, Reply> replies{};

    /// The addresses that were asked for, redirects left out.
    std::vector<std::string> requests{};

private:
    MainThread& mainThread_;
};

} // namespace brindlex
