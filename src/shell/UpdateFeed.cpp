#include "shell/UpdateFeed.h"

#include "foundation/JsonCoding.h"
#include "foundation/Text.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

namespace brindlex {
namespace {

constexpr std::string_view dateForm = "0000-00-00";
constexpr std::size_t longestAddress = 2048;

bool hasDateForm(const std::string& text)
{
    return std::equal(text.begin(), text.end(), dateForm.begin(), dateForm.end(),
        [](char one, char form) { return form == '0' ? one >= '0' && one <= '9' : one == form; });
}

bool isDay(const std::string& text)
{
    if (!hasDateForm(text))
        return false;
    const auto number = [&](std::size_t at, std::size_t count) {
        return std::atoi(text.substr(at, count).c_str());
    };
    return std::chrono::year_month_day(std::chrono::year(number(0, 4)),
        std::chrono::month(static_cast<unsigned>(number(5, 2))),
        std::chrono::day(static_cast<unsigned>(number(8, 2))))
        .ok();
}

/// Characters that an address has (RFC 3986).
bool isAddressCharacter(char character)
{
    constexpr std::string_view marks = "-._~:/?#[]@!$&'()*+,;=%";
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'z')
        || (character >= 'A' && character <= 'Z') || marks.find(character) != marks.npos;
}

} // namespace

bool isSecureAddress(const std::string& address)
{
    constexpr std::string_view scheme = "https://";
    if (address.size() > longestAddress || !lowercased(address).starts_with(scheme)
        || !std::all_of(address.begin(), address.end(), isAddressCharacter))
        return false;
    const auto behind = address.substr(scheme.size());
    const auto host = behind.substr(0, behind.find_first_of("/?#"));
    // A name before "@" is there to be taken for the host.
    return !host.empty() && host.find('@') == host.npos;
}

Result<UpdateFeed, JsonProblem> decodeUpdateFeed(std::string_view text)
{
    const auto document = parseJson(text);
    if (!document)
        return fail(document.error());
    auto feed = fromJson<UpdateFeed>(*document);
    if (feed && !feed->date.empty() && !isDay(feed->date))
        return fail(JsonProblem{"date", "is not a day"});
    if (feed && !isSecureAddress(feed->address))
        return fail(JsonProblem{"address", "is not an address of HTTPS"});
    return feed;
}

std::string encodeUpdateFeed(const UpdateFeed& feed) { return jsonText(toJson(feed)); }

} // namespace brindlex
