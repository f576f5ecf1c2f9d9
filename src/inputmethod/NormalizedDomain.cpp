#include "inputmethod/NormalizedDomain.h"

#include "foundation/Text.h"
#include "inputmethod/UrlHost.h"

#include <algorithm>
#include <array>
#include <span>

namespace brindlex {
namespace {

using Characters = std::span<const std::string_view>;

constexpr std::size_t longestLabel = 63;
constexpr std::array<std::string_view, 4> webPrefix{"w", "w", "w", "."};

bool hasWhiteSpace(std::string_view text)
{
    const auto all = scalars(text);
    return std::any_of(all.begin(), all.end(), isWhiteSpace);
}

bool isAllowedInLabel(std::string_view character)
{
    if (character == "-")
        return true;
    const char32_t first = scalars(character).front();
    return isLetter(first) || isNumber(first);
}

bool isLabel(Characters label)
{
    return !label.empty() && label.size() <= longestLabel && label.front() != "-"
        && label.back() != "-" && std::all_of(label.begin(), label.end(), isAllowedInLabel);
}

Characters withoutTrailingDots(Characters domain)
{
    while (!domain.empty() && domain.back() == ".")
        domain = domain.first(domain.size() - 1);
    return domain;
}

Characters withoutWebPrefix(Characters domain)
{
    const bool hasPrefix = domain.size() >= webPrefix.size()
        && std::equal(webPrefix.begin(), webPrefix.end(), domain.begin());
    return hasPrefix ? domain.subspan(webPrefix.size()) : domain;
}

bool isDomain(Characters domain)
{
    std::size_t labels = 0;
    for (auto begin = domain.begin();; ++begin) {
        const auto end = std::find(begin, domain.end(), ".");
        if (!isLabel({begin, end}))
            return false;
        ++labels;
        if (end == domain.end())
            return labels >= 2;
        begin = end;
    }
}

std::string joined(Characters domain)
{
    const char* begin = domain.front().data();
    return {begin, domain.back().data() + domain.back().size()};
}

} // namespace

std::optional<std::string> normalizedDomain(std::string_view text)
{
    const auto given = trimmed(text);
    if (given.empty() || hasWhiteSpace(given))
        return {};
    auto host = urlHost(given);
    if (!host)
        host = urlHost("https://" + given);
    const auto candidate = lowercased(trimmed(host.value_or(given)));
    const auto all = characters(candidate);
    const auto domain = withoutWebPrefix(withoutTrailingDots(all));
    if (!isDomain(domain))
        return {};
    return joined(domain);
}

} // namespace brindlex
