#include "shell/UpdateCheckResult.h"

#include "foundation/FatalError.h"

namespace brindlex {
namespace {

using Reason = UpdateCheckResult::Reason;

Reason reasonOf(HttpProblem::Kind kind)
{
    switch (kind) {
    case HttpProblem::Kind::unreachable:
        return Reason::unreachable;
    case HttpProblem::Kind::timedOut:
        return Reason::timedOut;
    case HttpProblem::Kind::tooLarge:
        return Reason::tooLarge;
    case HttpProblem::Kind::status:
        return Reason::status;
    case HttpProblem::Kind::insecure:
        return Reason::insecureRedirect;
    }
    fatalError("A problem of the network is of no kind");
}

UpdateCheckResult::Failed malformed(const JsonProblem& problem)
{
    const auto place = problem.path.empty() ? "" : problem.path + " ";
    return {Reason::malformed, place + problem.reason};
}

} // namespace

UpdateCheckResult::Any updateCheckResult(
    const Result<std::string, HttpProblem>& reply, const std::string& ownVersion)
{
    if (!reply)
        return UpdateCheckResult::Failed{reasonOf(reply.error().kind), reply.error().detail};
    const auto feed = decodeUpdateFeed(*reply);
    if (!feed)
        return malformed(feed.error());
    const auto own = SemanticVersion::fromText(ownVersion);
    if (own && !precedes(*own, feed->version))
        return UpdateCheckResult::Current{};
    return UpdateCheckResult::Newer{*feed};
}

} // namespace brindlex
