#include "catalogue/Translation.h"

#include "foundation/Json.h"

#include <unicode/locid.h>
#include <unicode/plurrule.h>
#include <unicode/unistr.h>

#include <memory>
#include <optional>

namespace brindlex {
namespace {

constexpr auto otherCategory = "other";

std::optional<Wording> wordingOf(const SortedJson& value)
{
    Wording wording;
    if (value.is_string()) {
        wording.forms.emplace(otherCategory, value.get<std::string>());
        return wording;
    }
    if (!value.is_object() || !value.contains(otherCategory))
        return {};
    for (const auto& [category, form] : value.items()) {
        if (!form.is_string())
            return {};
        wording.forms.emplace(category, form.get<std::string>());
    }
    return wording;
}

} // namespace

std::string_view Wording::form(std::string_view category) const
{
    auto found = forms.find(category);
    if (found == forms.end())
        found = forms.find(otherCategory);
    return found == forms.end() ? std::string_view() : found->second;
}

Result<Translation, std::string> parseTranslation(std::string_view text)
{
    const auto document = parseSortedJson(text);
    if (!document)
        return fail(document.error().reason);
    if (!document->is_object())
        return fail(std::string("It is no object"));
    Translation translation;
    for (const auto& [key, value] : document->items()) {
        auto wording = wordingOf(value);
        if (!wording)
            return fail("\"" + key + "\" is neither a text nor an object of plural forms");
        translation.emplace(key, *std::move(wording));
    }
    return translation;
}

std::string pluralCategory(const std::string& language, std::int64_t number)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::PluralRules> rules(
        icu::PluralRules::forLocale(icu::Locale(language.c_str()), status));
    if (U_FAILURE(status))
        return otherCategory;
    std::string category;
    return rules->select(static_cast<double>(number)).toUTF8String(category);
}

} // namespace brindlex
