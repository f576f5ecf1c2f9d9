#include "catalogue/StringCatalogue.h"

#include "catalogue/EmbeddedTranslations.h"
#include "foundation/FatalError.h"

#include <utility>

namespace brindlex {
namespace {

/// The number that decides between plural forms; nothing where there is none.
std::optional<std::int64_t> decidingNumber(std::span<const CatalogueArgument> arguments)
{
    std::optional<std::int64_t> number;
    for (const auto& argument : arguments)
        if (const auto* candidate = std::get_if<std::int64_t>(&argument))
            number = *candidate;
    return number;
}

} // namespace

StringCatalogue::StringCatalogue(std::string language)
    : StringCatalogue(language,
        {embeddedSystemWordings("en"), embeddedTranslation(language),
            embeddedSystemWordings(language)})
{
}

StringCatalogue::StringCatalogue(
    std::string language, const std::vector<std::string_view>& translations)
    : language_(std::move(language))
{
    for (const auto& row : catalogueTable)
        wordings_.push_back({{{"other", std::string(row.defaultValue)}}});
    for (const auto text : translations) {
        if (text.empty())
            continue;
        const auto translation = parseTranslation(text);
        if (!translation)
            fatalError("A translation cannot be read: " + translation.error());
        lay(*translation);
    }
}

std::string StringCatalogue::text(
    std::size_t row, std::span<const CatalogueArgument> arguments) const
{
    const auto& wording = wordings_[row];
    const auto number = wording.forms.size() > 1 ? decidingNumber(arguments) : std::nullopt;
    return filledIn(wording.form(number ? pluralCategory(language_, *number) : "other"), arguments);
}

void StringCatalogue::lay(const Translation& translation)
{
    for (const auto& [key, wording] : translation)
        if (const auto row = catalogueIndex(key); row < wordings_.size())
            wordings_[row] = wording;
}

} // namespace brindlex
