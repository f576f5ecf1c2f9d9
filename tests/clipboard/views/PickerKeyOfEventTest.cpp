#include "clipboard/views/PickerKeyOfEvent.h"

#include "platform/VirtualKey.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace brindlex {
namespace {

std::optional<ClipboardPickerKey> press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return pickerKeyOf(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(PickerKeyOfEvent, knowsEveryKeyThatMeansSomething)
{
    const std::vector<std::pair<int, std::int64_t>> rows{
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
        {Qt::Key_1, virtualKey::one},
        {Qt::Key_5, virtualKey::five},
        {Qt::Key_9, virtualKey::nine},
    };
    for (const auto& [key, keyCode] : rows)
        EXPECT_EQ(press(key), (ClipboardPickerKey{keyCode, KeyPhase::press, {}})) << key;
}

TEST(PickerKeyOfEvent, knowsNoOther)
{
    for (const auto key : {Qt::Key_A, Qt::Key_0, Qt::Key_Tab, Qt::Key_Shift, Qt::Key_Home})
        EXPECT_EQ(press(key), std::nullopt) << key;
}

TEST(PickerKeyOfEvent, knowsDigitsByTheirPlace)
{
    // On a French keyboard "&" stands on the key 1.
    const QKeyEvent ampersand(QEvent::KeyPress, Qt::Key_Ampersand, Qt::MetaModifier, 10, 0, 0);
    EXPECT_EQ(pickerKeyOf(ampersand),
        (ClipboardPickerKey{virtualKey::one, KeyPhase::press, ModifierSet::command}));
    const QKeyEvent ninth(QEvent::KeyPress, Qt::Key_Ccedilla, Qt::NoModifier, 18, 0, 0);
    EXPECT_EQ(pickerKeyOf(ninth), (ClipboardPickerKey{virtualKey::nine, KeyPhase::press, {}}));
    const QKeyEvent tenth(QEvent::KeyPress, Qt::Key_Agrave, Qt::NoModifier, 19, 0, 0);
    EXPECT_EQ(pickerKeyOf(tenth), std::nullopt);
}

TEST(PickerKeyOfEvent, hasTheModifiers)
{
    EXPECT_EQ(press(Qt::Key_Up, Qt::MetaModifier)->modifiers, ModifierSet::command);
    EXPECT_EQ(press(Qt::Key_Up, Qt::AltModifier)->modifiers, ModifierSet::option);
    EXPECT_EQ(press(Qt::Key_Up, Qt::ControlModifier)->modifiers, ModifierSet::control);
    EXPECT_EQ(press(Qt::Key_Up, Qt::ShiftModifier | Qt::MetaModifier)->modifiers,
        ModifierSet::shift | ModifierSet::command);
    EXPECT_EQ(press(Qt::Key_Up, Qt::KeypadModifier)->modifiers, ModifierSet{});
}

TEST(PickerKeyOfEvent, hasThePhase)
{
    const QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), true);
    EXPECT_EQ(pickerKeyOf(repeat)->phase, KeyPhase::repeat);
    const QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier);
    EXPECT_EQ(pickerKeyOf(release)->phase, KeyPhase::release);
}

} // namespace
} // namespace brindlex
