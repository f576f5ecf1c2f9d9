#include "shell/SemanticVersion.h"

#include "foundation/Json.h"
#include "foundation/Text.h"

#include <algorithm>
#include <charconv>
#include <compare>
#include <tuple>

namespace brindlex {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isIdentifierCharacter(char character)
{
    return isDigit(character) || (character >= 'a' && character <= 'z')
        || (character >= 'A' && character <= 'Z') || character == '-';
}

bool isNumeric(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool hasLeadingZero(std::string_view text) { return text.size() > 1 && text.front() == '0'; }

bool isIdentifier(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isIdentifierCharacter);
}

bool isPreReleaseIdentifier(std::string_view text)
{
    return isIdentifier(text) && !(isNumeric(text) && hasLeadingZero(text));
}

bool readNumber(const std::string& text, std::uint64_t& number)
{
    if (!isNumeric(text) || hasLeadingZero(text))
        return false;
    const auto* const end = text.data() + text.size();
    return std::from_chars(text.data(), end, number).ec == std::errc();
}

bool readCore(std::string_view text, SemanticVersion& version)
{
    const auto parts = split(text, '.');
    return parts.size() == 3 && readNumber(parts[0], version.major)
        && readNumber(parts[1], version.minor) && readNumber(parts[2], version.patch);
}

bool areIdentifiers(const std::vector<std::string>& parts, bool (*isOne)(std::string_view))
{
    return std::all_of(parts.begin(), parts.end(), isOne);
}

/// What stands behind the first of the marks, which is cut off the text; nothing without a mark.
std::optional<std::string> takeBehind(std::string_view& text, char mark)
{
    const auto at = text.find(mark);
    if (at == text.npos)
        return {};
    std::string behind(text.substr(at + 1));
    text = text.substr(0, at);
    return behind;
}

/// Numbers come before words, and are compared as such, however long they are.
std::weak_ordering compareIdentifiers(const std::string& first, const std::string& second)
{
    const auto rank = [](const std::string& text) {
        return std::tuple(!isNumeric(text), isNumeric(text) ? text.size() : 0);
    };
    const auto byRank = rank(first) <=> rank(second);
    return byRank != 0 ? byRank : first <=> second;
}

std::weak_ordering comparePreReleases(
    const std::vector<std::string>& first, const std::vector<std::string>& second)
{
    if (first.empty() || second.empty())
        return first.empty() <=> second.empty();
    return std::lexicographical_compare_three_way(
        first.begin(), first.end(), second.begin(), second.end(), compareIdentifiers);
}

std::string joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const auto& part : parts)
        text += (text.empty() ? "" : ".") + part;
    return text;
}

} // namespace

std::optional<SemanticVersion> SemanticVersion::fromText(std::string_view text)
{
    SemanticVersion version;
    const auto build = takeBehind(text, '+');
    const auto preRelease = takeBehind(text, '-');
    if (build && !areIdentifiers(split(*build, '.'), isIdentifier))
        return {};
    if (preRelease)
        version.preRelease = split(*preRelease, '.');
    if (!readCore(text, version) || !areIdentifiers(version.preRelease, isPreReleaseIdentifier))
        return {};
    version.build = build.value_or("");
    return version;
}

std::string SemanticVersion::text() const
{
    auto text = std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
    if (!preRelease.empty())
        text += "-" + joined(preRelease);
    return build.empty() ? text : text + "+" + build;
}

bool precedes(const SemanticVersion& first, const SemanticVersion& second)
{
    const auto core = [](const SemanticVersion& version) {
        return std::tuple(version.major, version.minor, version.patch);
    };
    if (core(first) != core(second))
        return core(first) < core(second);
    return comparePreReleases(first.preRelease, second.preRelease) < 0;
}

Json JsonCoding<SemanticVersion>::encode(const SemanticVersion& version) { return version.text(); }

Result<SemanticVersion, JsonProblem> JsonCoding<SemanticVersion>::decode(const Json& document)
{
    const auto version = document.is_string()
        ? SemanticVersion::fromText(document.get_ref<const std::string&>())
        : std::nullopt;
    if (!version)
        return fail(JsonProblem{"", "is not a semantic version"});
    return *version;
}

} // namespace brindlex
