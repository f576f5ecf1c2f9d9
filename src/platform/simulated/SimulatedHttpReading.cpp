#include "platform/simulated/SimulatedHttpReading.h"

#include <optional>
#include <utility>

namespace brindlex {
namespace {

using Simulated = SimulatedHttpReading;
using Kind = HttpProblem::Kind;
using Replies = std::map<std::string, Simulated::Reply>;
using Outcome = Result<std::string, HttpProblem>;

Outcome problem(Kind kind, std::string detail) { return fail(HttpProblem{kind, detail}); }

/// Nothing where a server keeps silent.
std::optional<Outcome> outcome(
    const Replies& replies, const std::string& url, std::size_t limit, int redirectsLeft)
{
    if (!url.starts_with("https://"))
        return problem(Kind::insecure, url);
    const auto found = replies.find(url);
    if (found == replies.end())
        return problem(Kind::unreachable, "no server");
    using Found = std::optional<Outcome>;
    return match(
        found->second,
        [&](const Simulated::Content& content) -> Found {
            return content.text.size() > limit ? problem(Kind::tooLarge, "")
                                               : Outcome(content.text);
        },
        [](const Simulated::Status& status) -> Found {
            return problem(Kind::status, std::to_string(status.code));
        },
        [&](const Simulated::Redirect& redirect) -> Found {
            if (redirectsLeft == 0)
                return problem(Kind::unreachable, "too many redirects");
            return outcome(replies, redirect.url, limit, redirectsLeft - 1);
        },
        [](const Simulated::Silence&) -> Found { return {}; });
}

} // namespace

Subscription SimulatedHttpReading::read(
    const std::string& url, const Limits& limits, Finished finished)
{
    requests.push_back(url);
    const auto found = outcome(replies, url, limits.bytes, mostRedirects);
    return mainThread_.after(found ? 0 : limits.time,
        [finished = std::move(finished),
            reply = found.value_or(problem(Kind::timedOut, "no reply in time"))] {
            finished(reply);
        });
}

} // namespace brindlex
