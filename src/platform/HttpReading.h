#pragma once

#include "foundation/Date.h"
#include "foundation/Result.h"
#include "foundation/Subscription.h"

#include <cstddef>
#include <functional>
#include <string>

namespace brindlex {

/// Why a document could not be read from the network.
struct HttpProblem {
    /// `unreachable`: no server, no trust in its certificate, no end of redirects. `status`: any
    /// other status than success. `insecure`: an address without TLS, given or redirected to.
    enum class Kind { unreachable, timedOut, tooLarge, status, insecure };

    Kind kind = Kind::unreachable;
    /// The system's words, or the number of the status.
    std::string detail{};

    bool operator==(const HttpProblem&) const = default;
};

/// Reads documents over HTTPS. Main thread only.
///
/// The server's certificate is verified. Up to five redirects are followed, to HTTPS only. Nothing
/// is loaded or created before the first call, and nothing stays after the last one.
class HttpReading {
public:
    struct Limits {
        std::size_t bytes = 0;
        /// From the call to the last byte, redirects included.
        Seconds time = 0;
    };
    using Finished = std::function<void(const Result<std::string, HttpProblem>&)>;

    static constexpr int mostRedirects = 5;

    virtual ~HttpReading() = default;

    /// Reads the document and reports its content once, from the loop. Dropping the subscription
    /// ends the reading without a report.
    virtual Subscription read(const std::string& url, const Limits& limits, Finished finished) = 0;
};

} // namespace brindlex
