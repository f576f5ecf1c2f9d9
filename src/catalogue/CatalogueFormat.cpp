#include "catalogue/CatalogueFormat.h"

namespace brindlex {
namespace {

std::string written(const CatalogueArgument& argument)
{
    if (const auto* number = std::get_if<std::int64_t>(&argument))
        return std::to_string(*number);
    return std::string(std::get<std::string_view>(argument));
}

} // namespace

std::string filledIn(std::string_view text, std::span<const CatalogueArgument> arguments)
{
    std::string filled;
    std::size_t begin = 0;
    std::size_t next = 0;
    while (const auto slot = nextCatalogueSlot(text, begin)) {
        const auto position = slot->position ? *slot->position : next++;
        filled += text.substr(begin, slot->begin - begin);
        filled += position < arguments.size() ? written(arguments[position])
                                              : text.substr(slot->begin, slot->length);
        begin = slot->begin + slot->length;
    }
    return filled += text.substr(begin);
}

} // namespace brindlex
