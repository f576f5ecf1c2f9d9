#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace brindlex {

/// What is filled in at a place of a text.
enum class CataloguePlaceholder { text, integer };

/// A place of a text where something is filled in: `%@` for a text, `%lld` for a whole number. A
/// translation that needs another order writes `%2$@` for the second argument.
struct CatalogueSlot {
    CataloguePlaceholder kind = CataloguePlaceholder::text;
    /// The argument, counted from 0; absent for the next one.
    std::optional<std::size_t> position{};
    /// Where it stands in the text.
    std::size_t begin = 0;
    std::size_t length = 0;

    bool operator==(const CatalogueSlot&) const = default;
};

/// The first place at or after `begin`; nothing when there is none. A percent sign that begins none
/// stands for itself.
constexpr std::optional<CatalogueSlot> nextCatalogueSlot(std::string_view text, std::size_t begin)
{
    for (auto at = text.find('%', begin); at != std::string_view::npos; at = text.find('%', at)) {
        auto end = at + 1;
        std::optional<std::size_t> position;
        if (end + 1 < text.size() && text[end] >= '1' && text[end] <= '9' && text[end + 1] == '$') {
            position = static_cast<std::size_t>(text[end] - '1');
            end += 2;
        }
        const auto rest = text.substr(end);
        if (rest.starts_with("@"))
            return CatalogueSlot{CataloguePlaceholder::text, position, at, end + 1 - at};
        if (rest.starts_with("lld"))
            return CatalogueSlot{CataloguePlaceholder::integer, position, at, end + 3 - at};
        ++at;
    }
    return {};
}

/// What is filled in.
using CatalogueArgument = std::variant<std::string_view, std::int64_t>;

template <typename Argument>
constexpr CataloguePlaceholder placeholderFor
    = std::integral<Argument> ? CataloguePlaceholder::integer : CataloguePlaceholder::text;

/// Whether the text takes arguments of exactly these types, in this order.
template <typename... Arguments>
constexpr bool takesArguments(std::string_view text)
{
    std::size_t begin = 0;
    [[maybe_unused]] const auto takesNext = [&](CataloguePlaceholder kind) {
        const auto slot = nextCatalogueSlot(text, begin);
        if (slot)
            begin = slot->begin + slot->length;
        return slot && slot->kind == kind;
    };
    return (takesNext(placeholderFor<Arguments>) && ...) && !nextCatalogueSlot(text, begin);
}

/// The text with its places filled in. A place without an argument stays as it is.
std::string filledIn(std::string_view text, std::span<const CatalogueArgument> arguments);

} // namespace brindlex
