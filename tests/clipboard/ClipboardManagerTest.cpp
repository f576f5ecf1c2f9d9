#include "clipboard/ClipboardManager.h"

#include "clipboard/ClipboardSession.h"

namespace brindlex {
namespace {

struct ClipboardManagerTest : testing::Test, ClipboardSession { };

TEST_F(ClipboardManagerTest, recordsFromItsStartToItsStop)
{
    start();
    EXPECT_EQ(log.lines(), Texts{startedLine});
    pasteboard.copyText("recorded");
    settle();
    manager.stop();
    pasteboard.copyText("not recorded");
    settle();
    EXPECT_EQ(textsOf(subsystem.store().items().value()), Texts{"recorded"});
}

TEST_F(ClipboardManagerTest, doesNothingWhileTheHistoryIsOff)
{
    set(&Keys::clipboardHistoryEnabled, false);
    start();
    settle();
    pasteboard.copyText("text");
    settle();
    EXPECT_FALSE(takesHotkey());
    EXPECT_EQ(input.tapsMade(), 0U);
    EXPECT_TRUE(hosted.empty());
    EXPECT_EQ(subsystem.store().items().value().size(), 0U);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardManagerTest, opensThePickerAtTheHotkeyAndSwallowsIt)
{
    start({"text"});
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{1024});
    EXPECT_TRUE(takesHotkey());
    EXPECT_TRUE(panel.isKey());
    EXPECT_EQ(visible(), Texts{"text"});
}

TEST_F(ClipboardManagerTest, takesOnlyTheHotkeyFromTheDevices)
{
    ClipboardSession devices(SimulatedInput::TapPlace::devices);
    devices.start();
    // Whoever wants nothing else sees all that is taken for others.
    int taken = 0;
    devices.tap.subscribe(
        eventMask(EventType::keyDown),
        [&](const Event&) {
            ++taken;
            return EventVerdict::pass;
        },
        EventTriggers{});
    EXPECT_FALSE(devices.takes(virtualKey::v, ModifierSet::command));
    EXPECT_FALSE(devices.takes(virtualKey::a, {}));
    EXPECT_EQ(taken, 0);
    EXPECT_TRUE(devices.takesHotkey());
    EXPECT_EQ(taken, 1);
}

TEST_F(ClipboardManagerTest, passesEveryOtherKeyAndEveryOtherSetOfModifiers)
{
    start();
    constexpr auto hotkey = ModifierSet::command | ModifierSet::shift;
    for (std::uint64_t bits = 0; bits < 16; ++bits)
        EXPECT_EQ(takes(virtualKey::v, {bits}), ModifierSet{bits} == hotkey);
    EXPECT_FALSE(takes(virtualKey::a, hotkey));
    EXPECT_EQ(hosted.size(), 1U);
}

TEST_F(ClipboardManagerTest, takesNoAccountOfOtherFlags)
{
    start();
    keyboard.holdModifiers(eventFlag::command | eventFlag::shift | eventFlag::capsLock
        | eventFlag::numericPad | eventFlag::function);
    EXPECT_EQ(keyboard.press(virtualKey::v), EventVerdict::swallow);
}

TEST_F(ClipboardManagerTest, takesAPressAndNoRelease)
{
    start();
    keyboard.holdModifiers(eventFlag::command | eventFlag::shift);
    EXPECT_EQ(keyboard.press(virtualKey::v), EventVerdict::swallow);
    EXPECT_EQ(keyboard.release(virtualKey::v), EventVerdict::pass);
}

TEST_F(ClipboardManagerTest, leavesItsOwnPasteAloneWhereThatIsTheHotkey)
{
    set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::v, ModifierSet::command});
    start();
    pasting.postPaste();
    EXPECT_TRUE(hosted.empty());
    EXPECT_EQ(timesPasted(), 1);
    EXPECT_TRUE(takes(virtualKey::v, ModifierSet::command));
}

TEST_F(ClipboardManagerTest, opensAtKeystrokesThatCarryAnotherTag)
{
    start();
    constexpr std::int64_t anotherTag = pasteEventTag - 1;
    input.post({EventType::keyDown, {}, eventFlag::command | eventFlag::shift,
        {{EventField::keyboardEventKeycode, virtualKey::v},
            {EventField::eventSourceUserData, anotherTag}}});
    EXPECT_EQ(hosted.size(), 1U);
    EXPECT_TRUE(input.delivered().empty());
}

TEST_F(ClipboardManagerTest, canBeStartedTwiceAndAgain)
{
    start();
    manager.start();
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{1024});
    EXPECT_EQ(log.lines(), Texts{startedLine});
    EXPECT_TRUE(takesHotkey());
    EXPECT_EQ(hosted.size(), 1U);
    manager.stop();
    manager.start();
    EXPECT_TRUE(takesHotkey());
}

TEST_F(ClipboardManagerTest, hasItsHotkeyAgainOncePermissionIsThere)
{
    permissions.set(false);
    input.setRefusesTaps(true);
    start();
    EXPECT_FALSE(takesHotkey());
    permissions.set(true);
    input.setRefusesTaps(false);
    permissions.notify();
    EXPECT_TRUE(takesHotkey());
}

TEST_F(ClipboardManagerTest, isNoLongerCalledOnceItHasGone)
{
    auto second = std::make_unique<ClipboardManager>(
        ClipboardManager::Abilities{
            defaults, mainThread, applications, activating, pasteboard, pasting, tap},
        ClipboardManager::Parts{
            subsystem.store(), subsystem.monitor(), subsystem.pickerPanelController()});
    tap.subscribe(eventMask(EventType::keyDown), [&](const Event&) {
        second.reset();
        return EventVerdict::pass;
    });
    second->start();
    EXPECT_FALSE(takesHotkey());
    EXPECT_EQ(second, nullptr);
    EXPECT_TRUE(hosted.empty());
}

} // namespace
} // namespace brindlex
