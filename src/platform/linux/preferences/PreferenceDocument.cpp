#include "platform/linux/preferences/PreferenceDocument.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace brindlex {
namespace {

bool isTooLarge(const SortedJson& number)
{
    return number.is_number_unsigned() && !std::in_range<std::int64_t>(number.get<std::uint64_t>());
}

bool isText(const SortedJson& item) { return item.is_string(); }

PreferenceValue fromItem(SortedJson item)
{
    if (item.is_boolean())
        return item.get<bool>();
    if (item.is_number_float())
        return item.get<double>();
    if (item.is_number_integer() && !isTooLarge(item))
        return item.get<std::int64_t>();
    if (item.is_string())
        return std::move(item.get_ref<std::string&>());
    if (item.is_array() && std::all_of(item.begin(), item.end(), isText))
        return item.get<std::vector<std::string>>();
    return PreferenceJson{item.dump()};
}

template <typename Value>
SortedJson asItem(const Value& value)
{
    return value;
}

SortedJson asItem(const PreferenceJson& value)
{
    auto item = parseSortedJson(value.text);
    return item ? *std::move(item) : SortedJson();
}

} // namespace

std::shared_ptr<const PreferenceValue> storedPreference(PreferenceValue value)
{
    return std::make_shared<const PreferenceValue>(std::move(value));
}

const PreferenceValue* valueIn(const PreferenceDocument& document, const std::string& key)
{
    const auto found = document.find(key);
    return found == document.end() ? nullptr : found->second.get();
}

Result<PreferenceDocument, JsonProblem> parsePreferences(std::string_view text)
{
    auto parsed = parseSortedJson(text);
    if (!parsed)
        return fail(parsed.error());
    if (!parsed->is_object())
        return fail(JsonProblem{"", "is not an object"});
    PreferenceDocument document;
    for (const auto& [key, item] : parsed->items())
        document.insert_or_assign(key, storedPreference(fromItem(item)));
    return document;
}

std::string preferencesText(const PreferenceDocument& document)
{
    auto object = SortedJson::object();
    for (const auto& [key, preference] : document)
        object.emplace(
            key, std::visit([](const auto& value) { return asItem(value); }, *preference));
    return object.dump(2, ' ', false, SortedJson::error_handler_t::replace) + "\n";
}

bool isSameDocument(const PreferenceDocument& one, const PreferenceDocument& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
        [](const auto& left, const auto& right) {
            return left.first == right.first
                && (left.second == right.second || *left.second == *right.second);
        });
}

PreferenceDocument merged(const PreferenceDocument& file, const PreferenceDocument& memory,
    const std::set<std::string>& changedKeys)
{
    auto result = file;
    for (const auto& key : changedKeys) {
        const auto found = memory.find(key);
        if (found == memory.end())
            result.erase(key);
        else
            result.insert_or_assign(key, found->second);
    }
    return result;
}

} // namespace brindlex
