#include "shell/UpdateMessage.h"

#include "catalogue/DayText.h"
#include "foundation/FatalError.h"
#include "foundation/Text.h"

#include <algorithm>
#include <cstdlib>

namespace brindlex {
namespace {

using Reason = UpdateCheckResult::Reason;

/// In characters as a reader sees them. "10.20.30-alpha.4+build.5" has 24.
constexpr std::size_t longestVersion = 32;
constexpr std::size_t longestReason = 200;

/// In one line, with an ellipsis in place of what would make it longer.
std::string shortened(std::string text, std::size_t longest)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    const auto seen = characters(text);
    if (seen.size() <= longest)
        return text;
    const auto kept = static_cast<std::size_t>(seen[longest].data() - text.data());
    return text.substr(0, kept) + "…";
}

std::string shownVersion(const std::string& version) { return shortened(version, longestVersion); }

std::string reasonText(const UpdateCheckResult::Failed& failure, const StringCatalogue& strings)
{
    switch (failure.reason) {
    case Reason::unreachable:
        return strings.text<"updates.reason.unreachableFormat">(
            shortened(wellFormed(failure.detail), longestReason));
    case Reason::timedOut:
        return strings.text<"updates.reason.timedOut">();
    case Reason::tooLarge:
        return strings.text<"updates.reason.tooLarge">();
    case Reason::malformed:
        return strings.text<"updates.reason.malformed">();
    case Reason::status:
        return strings.text<"updates.reason.statusFormat">(std::atoi(failure.detail.c_str()));
    case Reason::insecureRedirect:
        return strings.text<"updates.reason.insecure">();
    }
    fatalError("A check for updates has failed for no reason");
}

std::string newerDetail(
    const UpdateFeed& feed, const std::string& own, const StringCatalogue& strings)
{
    if (feed.date.empty())
        return strings.text<"updates.installedDetailFormat">(own);
    return strings.text<"updates.newerDetailFormat">(own, dayText(strings.language(), feed.date));
}

} // namespace

UpdateMessage updateMessage(const UpdateCheckResult::Any& result, const ProgramBundle& program,
    const StringCatalogue& strings)
{
    const auto own = shownVersion(program.shortVersion);
    return match(
        result,
        [&](const UpdateCheckResult::Current&) {
            return UpdateMessage{.title = strings.text<"updates.current">(),
                .detail = strings.text<"updates.currentDetailFormat">(own)};
        },
        [&](const UpdateCheckResult::Newer& newer) {
            const auto& feed = newer.feed;
            return UpdateMessage{
                .title = strings.text<"updates.newerFormat">(shownVersion(feed.version.text())),
                .detail = newerDetail(feed, own, strings),
                .notes = trimmed(wellFormed(feed.notes)),
                .address = isSecureAddress(feed.address) ? feed.address : std::string()};
        },
        [&](const UpdateCheckResult::Failed& failure) {
            return UpdateMessage{
                .title = strings.text<"updates.failed">(), .detail = reasonText(failure, strings)};
        });
}

} // namespace brindlex
