#include "platform/linux/input/TapChain.h"

#include <gtest/gtest.h>
#include <string>

namespace brindlex {
namespace {

constexpr EventMask keyDowns = eventMask(EventType::keyDown);
const Event keyDown{EventType::keyDown, {}, 0, {}};

class TapChainTest : public testing::Test {
protected:
    std::unique_ptr<EventTap> add(const std::string& name, EventVerdict verdict)
    {
        auto tap = chain_.add(
            keyDowns, {{keyDowns, {}}},
            [this, name, verdict](const Event&) {
                seen_ += name;
                return verdict;
            },
            [this] { ++changes_; });
        tap->setEnabled(true);
        return tap;
    }

    TapChain chain_;
    std::string seen_;
    int changes_ = 0;
};

TEST_F(TapChainTest, asksTheNewestTapFirst)
{
    const auto first = add("a", EventVerdict::pass);
    const auto second = add("b", EventVerdict::pass);

    EXPECT_EQ(chain_.offer(keyDown), EventVerdict::pass);
    EXPECT_EQ(seen_, "ba");
}

TEST_F(TapChainTest, endsWithTheTapThatSwallows)
{
    const auto first = add("a", EventVerdict::pass);
    const auto second = add("b", EventVerdict::swallow);

    EXPECT_EQ(chain_.offer(keyDown), EventVerdict::swallow);
    EXPECT_EQ(seen_, "b");
}

TEST_F(TapChainTest, tellsOfEveryChangeOfWhatIsWanted)
{
    auto tap = add("a", EventVerdict::pass);
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(chain_.interests(), (std::vector<EventInterest>{{keyDowns, {}}}));

    tap->setInterests({});
    EXPECT_EQ(changes_, 2);
    EXPECT_EQ(chain_.interests(), std::vector<EventInterest>{});
    tap->setEnabled(false);
    tap->setEnabled(false);
    EXPECT_EQ(changes_, 3);
    tap->setInterests({{keyDowns, {}}});
    tap.reset();
    EXPECT_EQ(changes_, 3);
}

TEST_F(TapChainTest, switchesOffOnlyWhatIsOn)
{
    const auto on = add("a", EventVerdict::pass);
    const auto off = add("b", EventVerdict::pass);
    off->setEnabled(false);

    chain_.switchOff(EventType::tapDisabledByTimeout);

    EXPECT_EQ(seen_, "a");
    EXPECT_FALSE(chain_.sees(keyDowns));
}

} // namespace
} // namespace brindlex
