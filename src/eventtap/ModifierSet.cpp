#include "eventtap/ModifierSet.h"

#include "foundation/JsonCoding.h"
#include "platform/Event.h"

#include <array>
#include <string_view>

namespace brindlex {
namespace {

struct Modifier {
    ModifierSet set;
    std::uint64_t eventFlag;
    std::string_view text;
};

/// In the order of the display text.
constexpr std::array modifiers{
    Modifier{ModifierSet::control, eventFlag::control, "^"},
    Modifier{ModifierSet::option, eventFlag::option, "Option"},
    Modifier{ModifierSet::shift, eventFlag::shift, "Shift"},
    Modifier{ModifierSet::command, eventFlag::command, "Command"},
};

} // namespace

ModifierSet ModifierSet::fromEventFlags(std::uint64_t flags)
{
    ModifierSet result;
    for (const auto& modifier : modifiers)
        if ((flags & modifier.eventFlag) != 0)
            result = result | modifier.set;
    return result;
}

std::uint64_t ModifierSet::eventFlags() const
{
    std::uint64_t flags = 0;
    for (const auto& modifier : modifiers)
        if (contains(modifier.set))
            flags |= modifier.eventFlag;
    return flags;
}

std::string ModifierSet::displayText() const
{
    std::string text;
    for (const auto& modifier : modifiers) {
        if (!contains(modifier.set))
            continue;
        if (!text.empty())
            text += ' ';
        text += modifier.text;
    }
    return text;
}

Json JsonCoding<ModifierSet>::encode(ModifierSet value) { return value.rawValue; }

Result<ModifierSet, JsonProblem> JsonCoding<ModifierSet>::decode(const Json& document)
{
    const auto rawValue = fromJson<std::uint64_t>(document);
    if (!rawValue)
        return fail(rawValue.error());
    return ModifierSet{*rawValue};
}

} // namespace brindlex
