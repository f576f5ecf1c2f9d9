#include "clipboard/ClipboardSettings.h"

#include "clipboard/ClipboardPreferenceKeys.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr HotkeyCombo noHotkey{.keyCode = -1, .modifiers = {}};

ClipboardPreferences preferencesIn(const UserDefaultsType& defaults)
{
    const ClipboardPreferenceKeys keys;
    return {
        .isHistoryEnabled = readPreference(defaults, keys.clipboardHistoryEnabled),
        .hotkey = readPreference(defaults, keys.clipboardHotkey),
        .pastesAutomatically = readPreference(defaults, keys.clipboardAutoPaste),
        .maxItems = readPreference(defaults, keys.clipboardMaxItems),
    };
}

} // namespace

bool isClipboardHotkey(const HotkeyCombo& combo)
{
    const auto has = [&](ModifierSet modifier) { return combo.modifiers.contains(modifier); };
    return combo.keyCode >= 0
        && (has(ModifierSet::command) || has(ModifierSet::option) || has(ModifierSet::control));
}

std::vector<std::int64_t> clipboardMaxItemsChoices(std::int64_t present)
{
    std::vector<std::int64_t> choices{50, 100, 200, 500, 1'000, 5'000, 10'000, 100'000};
    const auto place = std::lower_bound(choices.begin(), choices.end(), present);
    if (place == choices.end() || *place != present)
        choices.insert(place, present);
    return choices;
}

ClipboardSettings::ClipboardSettings(const Abilities& abilities, ClipboardHistoryStore& store)
    : abilities_(abilities), store_(store),
      meter_(store, abilities.mainThread, abilities.indexQueue),
      preferences_(preferencesIn(abilities.defaults)),
      changes_(abilities.defaults.observeChanges([this] { publish(); }))
{
}

std::string ClipboardSettings::folderName() const
{
    const auto inHome = folder().lexically_relative(abilities_.userFolders.home());
    const bool isInHome = !inHome.empty() && *inHome.begin() != "..";
    return (isInHome ? "~" / inHome : folder()).string();
}

void ClipboardSettings::setHistoryEnabled(bool isOn)
{
    writePreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardHistoryEnabled, isOn);
}

void ClipboardSettings::setHotkey(const HotkeyCombo& combo)
{
    const bool isNone = combo.keyCode < 0;
    if (isNone || isClipboardHotkey(combo))
        writePreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardHotkey,
            isNone ? noHotkey : combo);
}

void ClipboardSettings::setPastesAutomatically(bool isOn)
{
    writePreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardAutoPaste, isOn);
}

void ClipboardSettings::setMaxItems(std::int64_t limit)
{
    writePreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardMaxItems, limit);
}

/// Most changes are of other preferences.
void ClipboardSettings::publish()
{
    if (const auto present = preferencesIn(abilities_.defaults); present != preferences_.value())
        preferences_.set(present);
}

} // namespace brindlex
