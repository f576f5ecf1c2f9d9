#pragma once

#include "catalogue/CatalogueFormat.h"
#include "catalogue/CatalogueTable.h"
#include "catalogue/FixedText.h"
#include "catalogue/Translation.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// Whether there is a text under the key that takes exactly these arguments.
template <FixedText key, typename... Arguments>
concept CatalogueKeyTaking = catalogueIndex(key)
< catalogueTable.size()
    && takesArguments<Arguments...>(catalogueTable[catalogueIndex(key)].defaultValue);

/// The texts of the program in one language, by key:
///
///     strings.text<"logs.entriesCountFormat">(shown, all)
///
/// A key that the table does not have and arguments that the text does not take do not compile. A
/// text without a translation is the English one. Of a text with plural forms the last number
/// decides. Never changes; callable from any thread.
class StringCatalogue {
public:
    /// In one of `catalogueLanguages`; in English for any other.
    explicit StringCatalogue(std::string language);
    /// From translations in the form of `parseTranslation`, the later laid over the earlier ones.
    StringCatalogue(std::string language, const std::vector<std::string_view>& translations);

    const std::string& language() const { return language_; }

    template <FixedText key, typename... Arguments>
    requires CatalogueKeyTaking<key, Arguments...> std::string text(const Arguments&... arguments)
    const
    {
        return text(catalogueIndex(key),
            std::array<CatalogueArgument, sizeof...(Arguments)>{argument(arguments)...});
    }

    /// The text of a row of `catalogueTable`, with these arguments.
    std::string text(std::size_t row, std::span<const CatalogueArgument> arguments) const;

private:
    static CatalogueArgument argument(std::string_view text) { return text; }
    static CatalogueArgument argument(std::integral auto number)
    {
        return static_cast<std::int64_t>(number);
    }

    void lay(const Translation& translation);

    std::string language_;
    /// In the order of the table.
    std::vector<Wording> wordings_;
};

} // namespace brindlex
