#include "eventtap/KeyName.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace brindlex {
namespace {

/// The keys that are named by what they do.
constexpr std::array<std::pair<std::int64_t, std::string_view>, 21> namedKeys{{
    {36, "Return"},
    {48, "Tab"},
    {49, "Space"},
    {51, "Delete"},
    {53, "Escape"},
    {96, "F5"},
    {97, "F6"},
    {98, "F7"},
    {99, "F3"},
    {100, "F8"},
    {101, "F9"},
    {103, "F11"},
    {109, "F10"},
    {111, "F12"},
    {118, "F4"},
    {120, "F2"},
    {122, "F1"},
    {123, "Left"},
    {124, "Right"},
    {125, "Down"},
    {126, "Up"},
}};

std::string wordFor(std::string_view name, const KeyWords& words)
{
    const auto found = words.names.find(name);
    return found == words.names.end() ? std::string(name) : found->second;
}

std::string wordForNumber(std::int64_t keyCode, const KeyWords& words)
{
    return words.ofNumber ? words.ofNumber(keyCode) : "Key " + std::to_string(keyCode);
}

} // namespace

std::string keyName(std::int64_t keyCode, const KeyCharacters& characters, const KeyWords& words)
{
    const auto named = std::find_if(
        namedKeys.begin(), namedKeys.end(), [&](const auto& row) { return row.first == keyCode; });
    if (named != namedKeys.end())
        return wordFor(named->second, words);
    const auto written = uppercased(characters(keyCode));
    return written.empty() ? wordForNumber(keyCode, words) : written;
}

std::string comboText(const HotkeyCombo& combo, const KeyCharacters& characters)
{
    const auto modifiers = combo.modifiers.displayText();
    const auto name = keyName(combo.keyCode, characters);
    return modifiers.empty() ? name : modifiers + " " + name;
}

} // namespace brindlex
