#include "catalogue/CatalogueLanguage.h"

#include "catalogue/EmbeddedTranslations.h"
#include "foundation/Text.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace brindlex {
namespace {

/// The subtags in lower case, without the encoding and the modifier of a POSIX locale.
std::vector<std::string> subtags(std::string_view name)
{
    auto tag = lowercased(name.substr(0, name.find_first_of(".@")));
    std::replace(tag.begin(), tag.end(), '_', '-');
    return split(tag, '-');
}

bool isTraditional(const std::vector<std::string>& tags)
{
    const auto has = [&](std::string_view tag) {
        return std::find(tags.begin(), tags.end(), tag) != tags.end();
    };
    if (has("hant") || has("hans"))
        return has("hant");
    return has("tw") || has("hk") || has("mo");
}

std::optional<std::string> spokenLanguage(std::string_view name)
{
    const auto tags = subtags(name);
    if (tags.front() == "zh")
        return isTraditional(tags) ? "zh-Hant" : "zh-Hans";
    const auto found
        = std::find(std::begin(catalogueLanguages), std::end(catalogueLanguages), tags.front());
    if (found == std::end(catalogueLanguages))
        return {};
    return std::string(*found);
}

} // namespace

std::string catalogueLanguage(const std::vector<std::string>& preferred)
{
    for (const auto& name : preferred)
        if (auto language = spokenLanguage(name))
            return *std::move(language);
    return "en";
}

} // namespace brindlex
