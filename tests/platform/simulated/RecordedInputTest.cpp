#include "platform/simulated/RecordedInput.h"

#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedMouse.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class RecordedInputTest : public testing::Test {
protected:
    SimulatedInput input;
    SimulatedMouse mouse{input};
    RecordedInput recorded{input, input};
};

TEST_F(RecordedInputTest, hasTheVerdictOnEachEvent)
{
    const auto tap = recorded.createTap(0x6000000, {}, [](const Event& event) {
        return isMouseDown(event.type) ? EventVerdict::swallow : EventVerdict::pass;
    });
    tap->setEnabled(true);

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
    EXPECT_EQ(mouse.release(3), EventVerdict::pass);

    const auto decisions = recorded.takeDecisions();
    ASSERT_EQ(decisions.size(), 2U);
    EXPECT_EQ(decisions[0].event.type, EventType::otherMouseDown);
    EXPECT_EQ(decisions[0].verdict, EventVerdict::swallow);
    EXPECT_EQ(decisions[1].event.type, EventType::otherMouseUp);
    EXPECT_EQ(decisions[1].verdict, EventVerdict::pass);
    EXPECT_TRUE(recorded.takeDecisions().empty());
}

TEST_F(RecordedInputTest, hasWhatWasPostedButNotWhatWasRefused)
{
    const SyntheticEvent key{.type = EventType::keyDown};
    const SyntheticEvent wheel{.type = EventType::scrollWheel};
    input.setCannotMake(
        [](const SyntheticEvent& event) { return event.type == EventType::scrollWheel; });

    EXPECT_TRUE(recorded.post(key));
    EXPECT_FALSE(recorded.post(wheel));

    EXPECT_EQ(recorded.takePosted(), std::vector<RecordedInput::Posted>{key});
    EXPECT_EQ(input.delivered().size(), 1U);
    EXPECT_TRUE(recorded.takePosted().empty());
}

TEST_F(RecordedInputTest, hasTheScrollsAmongWhatWasPosted)
{
    const SyntheticEvent wheel{.type = EventType::scrollWheel};

    recorded.announceScroll(eventFlag::option, {.vertical = 12.5, .horizontal = -3});
    EXPECT_TRUE(recorded.post(wheel));
    recorded.finishScroll();

    EXPECT_EQ(recorded.takePosted(),
        (std::vector<RecordedInput::Posted>{
            RecordedInput::AnnouncedScroll{eventFlag::option, {12.5, -3}}, wheel,
            RecordedInput::FinishedScroll{}}));
}

} // namespace
} // namespace brindlex
