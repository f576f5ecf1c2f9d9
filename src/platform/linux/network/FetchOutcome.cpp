#include "platform/linux/network/FetchOutcome.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brindlex {
namespace {

using Kind = HttpProblem::Kind;

constexpr std::string_view content = "content";
constexpr std::array kinds{
    std::pair{Kind::unreachable, "unreachable"},
    std::pair{Kind::timedOut, "timedOut"},
    std::pair{Kind::tooLarge, "tooLarge"},
    std::pair{Kind::status, "status"},
    std::pair{Kind::insecure, "insecure"},
};

std::string nameOf(Kind kind)
{
    const auto* const found = std::find_if(
        kinds.begin(), kinds.end(), [&](const auto& row) { return row.first == kind; });
    return found->second;
}

} // namespace

std::string encodeFetchOutcome(const Result<std::string, HttpProblem>& outcome)
{
    if (outcome)
        return std::string(content) + "\n" + *outcome;
    return nameOf(outcome.error().kind) + "\n" + outcome.error().detail;
}

Result<std::string, HttpProblem> decodeFetchOutcome(std::string_view text)
{
    const auto end = std::min(text.find('\n'), text.size());
    const auto name = text.substr(0, end);
    const std::string rest(text.substr(std::min(end + 1, text.size())));
    if (name == content && end != text.size())
        return rest;
    for (const auto& [kind, kindName] : kinds)
        if (name == kindName)
            return fail(HttpProblem{kind, rest});
    return fail(HttpProblem{Kind::unreachable, "The fetcher has ended without a word"});
}

} // namespace brindlex
