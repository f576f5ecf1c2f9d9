#include "eventtap/KeyRecorder.h"

#include "eventtap/GlobalEventTapFixture.h"

namespace brindlex {
namespace {

class KeyRecorderTest : public GlobalEventTapTest {
protected:
    KeyRecorderTest() { activation.becomeActive(); }

    std::vector<HotkeyCombo> recorded;
    KeyRecorder recorder{
        tap, activation, [this](const HotkeyCombo& combo) { recorded.push_back(combo); }};
};

using Recorded = std::vector<HotkeyCombo>;

TEST_F(KeyRecorderTest, recordsAKeyWithItsModifiersAndKeepsItFromOthers)
{
    recorder.start();
    EXPECT_TRUE(recorder.recording().value());

    keyboard.holdModifiers(eventFlag::option | eventFlag::shift);
    EXPECT_EQ(keyboard.press(12), EventVerdict::swallow);

    EXPECT_EQ(recorded, (Recorded{{12, ModifierSet::option | ModifierSet::shift}}));
    EXPECT_FALSE(recorder.recording().value());
    keyboard.release(12);
    EXPECT_EQ(keyboard.press(12), EventVerdict::pass) << "One key and no more";
    EXPECT_FALSE(tap.isLive());
}

TEST_F(KeyRecorderTest, takesAPlainKey)
{
    recorder.start();

    EXPECT_EQ(keyboard.press(0), EventVerdict::swallow);

    EXPECT_EQ(recorded, (Recorded{{0, {}}}));
}

TEST_F(KeyRecorderTest, goesOnAfterAKeyThatIsNotAcceptedAndKeepsItFromOthers)
{
    KeyRecorder choosy(
        tap, activation, [this](const HotkeyCombo& combo) { recorded.push_back(combo); },
        [](const HotkeyCombo& combo) { return combo.modifiers == ModifierSet::option; });
    choosy.start();

    EXPECT_EQ(keyboard.press(12), EventVerdict::swallow);
    EXPECT_EQ(recorded, Recorded{});
    EXPECT_TRUE(choosy.recording().value());
    keyboard.release(12);
    keyboard.holdModifiers(eventFlag::option);
    EXPECT_EQ(keyboard.press(12), EventVerdict::swallow);

    EXPECT_EQ(recorded, (Recorded{{12, ModifierSet::option}}));
    EXPECT_FALSE(choosy.recording().value());
}

TEST_F(KeyRecorderTest, isCancelledByEscapeThatNobodyNeedsToAccept)
{
    KeyRecorder choosy(
        tap, activation, [](const HotkeyCombo&) {}, [](const HotkeyCombo&) { return false; });
    choosy.start();

    EXPECT_EQ(keyboard.press(53), EventVerdict::swallow);

    EXPECT_FALSE(choosy.recording().value());
}

TEST_F(KeyRecorderTest, isCancelledByEscapeWhichGoesNoFurther)
{
    recorder.start();

    EXPECT_EQ(keyboard.press(53), EventVerdict::swallow);

    EXPECT_EQ(recorded, Recorded{});
    EXPECT_FALSE(recorder.recording().value());
}

TEST_F(KeyRecorderTest, letsKeysOfOtherProgramsPassAndGoesOn)
{
    recorder.start();
    activation.resignActive();

    EXPECT_EQ(keyboard.press(0), EventVerdict::pass);
    keyboard.release(0);
    EXPECT_EQ(keyboard.press(53), EventVerdict::pass);
    keyboard.release(53);

    EXPECT_EQ(recorded, Recorded{});
    EXPECT_TRUE(recorder.recording().value());
    activation.becomeActive();
    EXPECT_EQ(keyboard.press(1), EventVerdict::swallow);
    EXPECT_EQ(recorded, (Recorded{{1, {}}}));
}

TEST_F(KeyRecorderTest, startsAndStopsWithItsButton)
{
    recorder.toggle();
    EXPECT_TRUE(recorder.recording().value());
    recorder.start();
    recorder.toggle();
    EXPECT_FALSE(recorder.recording().value());

    EXPECT_EQ(keyboard.press(0), EventVerdict::pass);
    EXPECT_EQ(recorded, Recorded{});
    recorder.stop();
}

TEST_F(KeyRecorderTest, endsWithItself)
{
    {
        KeyRecorder other(tap, activation, [](const HotkeyCombo&) {});
        other.start();
        EXPECT_TRUE(tap.isLive());
    }
    EXPECT_FALSE(tap.isLive());
}

TEST_F(KeyRecorderTest, mayBeStoppedByWhatItRecords)
{
    int count = 0;
    KeyRecorder* stopped = nullptr;
    KeyRecorder stopping(tap, activation, [&](const HotkeyCombo&) {
        if (++count == 1)
            stopped->stop();
    });
    stopped = &stopping;
    stopping.start();

    EXPECT_EQ(keyboard.press(0), EventVerdict::swallow);

    EXPECT_EQ(count, 1);
    EXPECT_FALSE(stopping.recording().value());
}

} // namespace
} // namespace brindlex
