#include "clipboard/views/PickerKeyOfEvent.h"

#include "platform/VirtualKey.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace brindlex {
namespace {

constexpr std::array<std::pair<int, std::int64_t>, 10> keys{{
    {Qt::Key_Down, virtualKey::downArrow},
    {Qt::Key_Up, virtualKey::upArrow},
    {Qt::Key_Right, virtualKey::rightArrow},
    {Qt::Key_Left, virtualKey::leftArrow},
    {Qt::Key_Space, virtualKey::space},
    {Qt::Key_Return, virtualKey::returnKey},
    {Qt::Key_Enter, virtualKey::returnKey},
    {Qt::Key_Backspace, virtualKey::deleteKey},
    {Qt::Key_Delete, virtualKey::forwardDelete},
    {Qt::Key_Escape, virtualKey::escape},
}};

/// The number by which X knows the key 1 of the upper row of a PC.
constexpr quint32 scanCodeOfOne = 10;

/// Which of the digits from 1 on, counted from 0.
std::optional<std::size_t> digitOf(const QKeyEvent& event)
{
    const auto count = static_cast<quint32>(clipboardDigitKeys.size());
    if (event.nativeScanCode() - scanCodeOfOne < count)
        return event.nativeScanCode() - scanCodeOfOne;
    const auto digit = static_cast<quint32>(event.key() - Qt::Key_1);
    return digit < count ? std::optional<std::size_t>(digit) : std::nullopt;
}

std::optional<std::int64_t> keyCodeOf(const QKeyEvent& event)
{
    const auto found = std::ranges::find(keys, event.key(), &std::pair<int, std::int64_t>::first);
    if (found != keys.end())
        return found->second;
    const auto digit = digitOf(event);
    return digit ? std::optional<std::int64_t>(clipboardDigitKeys[*digit]) : std::nullopt;
}

ModifierSet modifiersOf(const QKeyEvent& event)
{
    ModifierSet modifiers{};
    for (const auto& [held, modifier] : {std::pair{Qt::MetaModifier, ModifierSet::command},
             std::pair{Qt::AltModifier, ModifierSet::option},
             std::pair{Qt::ControlModifier, ModifierSet::control},
             std::pair{Qt::ShiftModifier, ModifierSet::shift}})
        if (event.modifiers().testFlag(held))
            modifiers = modifiers | modifier;
    return modifiers;
}

KeyPhase phaseOf(const QKeyEvent& event)
{
    if (event.type() == QEvent::KeyRelease)
        return KeyPhase::release;
    return event.isAutoRepeat() ? KeyPhase::repeat : KeyPhase::press;
}

} // namespace

std::optional<ClipboardPickerKey> pickerKeyOf(const QKeyEvent& event)
{
    const auto keyCode = keyCodeOf(event);
    if (!keyCode)
        return {};
    return ClipboardPickerKey{
        .keyCode = *keyCode, .phase = phaseOf(event), .modifiers = modifiersOf(event)};
}

} // namespace brindlex
