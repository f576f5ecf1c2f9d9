#include "clipboard/ClipboardPickerKeys.h"

#include <algorithm>

namespace brindlex {
namespace {

using Action = ClipboardPickerAction;

bool isPressWithCommandAlone(const ClipboardPickerKey& key)
{
    return key.phase == KeyPhase::press && key.modifiers == ModifierSet::command;
}

Action::Any atPress(const ClipboardPickerKey& key, const Action::Any& action)
{
    return key.phase == KeyPhase::press ? action : Action::Ignored{};
}

Action::Any actionOfArrow(
    const ClipboardPickerKey& key, const Action::Any& withCommand, std::int64_t delta)
{
    return key.modifiers.contains(ModifierSet::command) ? withCommand : Action::Move{delta};
}

Action::Any actionOfSpace(const ClipboardPickerKey& key)
{
    if (key.modifiers.contains(ModifierSet::option))
        return Action::Preview{};
    return Action::Ignored{};
}

Action::Any actionOfDeletion(const ClipboardPickerKey& key, bool isQueryEmpty)
{
    if (isQueryEmpty || isPressWithCommandAlone(key))
        return Action::DeleteSelection{};
    return Action::Ignored{};
}

Action::Any actionOfDigit(const ClipboardPickerKey& key)
{
    const auto digit = std::find(clipboardDigitKeys.begin(), clipboardDigitKeys.end(), key.keyCode);
    if (digit == clipboardDigitKeys.end() || !isPressWithCommandAlone(key))
        return Action::Ignored{};
    return Action::CommitItem{static_cast<std::size_t>(digit - clipboardDigitKeys.begin())};
}

} // namespace

ClipboardPickerAction::Any clipboardPickerAction(const ClipboardPickerKey& key, bool isQueryEmpty)
{
    if (key.phase == KeyPhase::release)
        return Action::Ignored{};
    switch (key.keyCode) {
    case virtualKey::downArrow:
        return actionOfArrow(key, Action::UnpinSelection{}, 1);
    case virtualKey::upArrow:
        return actionOfArrow(key, Action::TogglePinSelection{}, -1);
    case virtualKey::rightArrow:
        return atPress(key, Action::MoveCategory{1});
    case virtualKey::leftArrow:
        return atPress(key, Action::MoveCategory{-1});
    case virtualKey::space:
        return actionOfSpace(key);
    case virtualKey::returnKey:
        return atPress(key, Action::Commit{});
    case virtualKey::deleteKey:
    case virtualKey::forwardDelete:
        return actionOfDeletion(key, isQueryEmpty);
    case virtualKey::escape:
        return atPress(key, Action::Cancel{});
    default:
        return actionOfDigit(key);
    }
}

} // namespace brindlex
