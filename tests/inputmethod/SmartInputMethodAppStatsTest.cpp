#include "inputmethod/SmartInputMethodAppStats.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Ratio = SmartInputMethodThresholdRatio;
using Window = SmartInputMethodWindowSize;

/// So many samples of each source, in this order.
SmartInputMethodAppStats statsWith(const std::vector<std::pair<std::size_t, std::string>>& groups)
{
    auto stats = statsOf("com.example.Editor", {});
    for (const auto& [count, source] : groups)
        for (auto& sample : samples(count, source))
            stats.samples.push_back(sample);
    return stats;
}

SmartInputMethodAppStats refreshed(
    SmartInputMethodAppStats stats, Ratio ratio = Ratio::eighty, Window window = Window::ten)
{
    stats.refreshRecommendation(ratio, window);
    return stats;
}

/// The statistics with another recommendation, and all else as it was.
SmartInputMethodAppStats with(SmartInputMethodAppStats stats, std::optional<std::string> source,
    std::int64_t percent, bool isActive)
{
    stats.recommendedInputSourceID = std::move(source);
    stats.recommendationPercent = percent;
    stats.isActive = isActive;
    return stats;
}

TEST(SmartInputMethodAppStats, recommendsWhatEightOfTenSamplesAgreeOn)
{
    const auto stats = statsWith({{8, "A"}, {2, "B"}});
    EXPECT_EQ(refreshed(stats), with(stats, "A", 80, true));
}

TEST(SmartInputMethodAppStats, isNotInForceWithSevenOfTen)
{
    const auto stats = statsWith({{7, "A"}, {3, "B"}});
    EXPECT_EQ(refreshed(stats), with(stats, "A", 70, false));
}

TEST(SmartInputMethodAppStats, recommendsNothingOnATie)
{
    const auto stats = statsWith({{5, "A"}, {5, "B"}});
    EXPECT_EQ(refreshed(stats), with(stats, std::nullopt, 0, false));
    const auto threeWays = statsWith({{3, "B"}, {4, "C"}, {2, "A"}, {1, "A"}, {1, "B"}});
    EXPECT_EQ(threeWays.dominantInputSourceID(), std::nullopt);
    EXPECT_EQ(statsWith({{2, "A"}, {2, "B"}, {3, "C"}}).dominantInputSourceID(), "C");
}

TEST(SmartInputMethodAppStats, countsALayoutOnceWhateverItsLanguage)
{
    const auto stats = statsWith({{5, "xkb:de::ger"}, {3, "xkb:de::deu"}, {2, "xkb:us::eng"}});
    EXPECT_EQ(refreshed(stats), with(stats, "xkb:de::ger", 80, true));
    EXPECT_EQ(stats.sharePercent("xkb:de::"), 80);
}

TEST(SmartInputMethodAppStats, recommendsBeforeTheWindowIsFull)
{
    const auto stats = statsWith({{3, "A"}});
    EXPECT_EQ(refreshed(stats), with(stats, "A", 100, false));
    const auto nine = statsWith({{9, "A"}});
    EXPECT_EQ(refreshed(nine), with(nine, "A", 100, false));
    const auto ten = statsWith({{10, "A"}});
    EXPECT_EQ(refreshed(ten), with(ten, "A", 100, true));
}

TEST(SmartInputMethodAppStats, recommendsNothingWithoutSamples)
{
    auto stats = with(statsWith({}), "A", 100, true);
    EXPECT_EQ(refreshed(stats), with(stats, std::nullopt, 0, false));
}

TEST(SmartInputMethodAppStats, staysVisibleWhileSwitchedOff)
{
    auto stats = statsWith({{10, "A"}});
    stats.isDisabled = true;
    EXPECT_EQ(refreshed(stats), with(stats, "A", 100, false));
}

TEST(SmartInputMethodAppStats, isInForceFromTheThresholdOn)
{
    EXPECT_TRUE(refreshed(statsWith({{7, "A"}, {3, "B"}}), Ratio::seventy).isActive);
    EXPECT_FALSE(refreshed(statsWith({{6, "A"}, {4, "B"}}), Ratio::seventy).isActive);
    EXPECT_TRUE(refreshed(statsWith({{9, "A"}, {1, "B"}}), Ratio::ninety).isActive);
    EXPECT_FALSE(refreshed(statsWith({{8, "A"}, {2, "B"}}), Ratio::ninety).isActive);
    EXPECT_TRUE(
        refreshed(statsWith({{40, "A"}, {10, "B"}}), Ratio::eighty, Window::fifty).isActive);
    EXPECT_FALSE(
        refreshed(statsWith({{39, "A"}, {11, "B"}}), Ratio::eighty, Window::fifty).isActive);
}

TEST(SmartInputMethodAppStats, needsAFullWindowOfEachSize)
{
    const std::pair<Window, std::size_t> windows[]
        = {{Window::ten, 10}, {Window::twenty, 20}, {Window::thirty, 30}, {Window::fifty, 50}};
    for (const auto& [window, size] : windows) {
        EXPECT_FALSE(refreshed(statsWith({{size - 1, "A"}}), Ratio::eighty, window).isActive);
        EXPECT_TRUE(refreshed(statsWith({{size, "A"}}), Ratio::eighty, window).isActive);
        const auto trimmed = refreshed(statsWith({{size + 1, "A"}}), Ratio::eighty, window);
        EXPECT_EQ(trimmed.samples.size(), size);
        EXPECT_TRUE(trimmed.isActive);
    }
}

TEST(SmartInputMethodAppStats, trimsToTheNewestForGood)
{
    auto stats = statsWith({{40, "A"}, {3, "B"}, {7, "C"}});
    const auto newest
        = std::vector<SmartInputMethodSample>(stats.samples.end() - 10, stats.samples.end());

    stats.refreshRecommendation(Ratio::seventy, Window::ten);
    EXPECT_EQ(stats.samples, newest);
    EXPECT_EQ(stats.recommendedInputSourceID, "C");
    EXPECT_TRUE(stats.isActive);

    stats.refreshRecommendation(Ratio::seventy, Window::fifty);
    EXPECT_EQ(stats.samples, newest);
    EXPECT_EQ(stats.recommendedInputSourceID, "C");
    EXPECT_FALSE(stats.isActive);
}

TEST(SmartInputMethodAppStats, doesNotLookAtTheOrderOfTheSamples)
{
    auto stats = statsWith({{8, "A"}, {2, "B"}});
    std::reverse(stats.samples.begin(), stats.samples.end());
    EXPECT_EQ(refreshed(stats), with(stats, "A", 80, true));
}

TEST(SmartInputMethodAppStats, takesTheEmptySourceForOneOfItsOwn)
{
    EXPECT_EQ(statsWith({{3, ""}, {2, "A"}}).dominantInputSourceID(), "");
    EXPECT_EQ(statsWith({{3, ""}, {2, "A"}}).sharePercent(""), 60);
    EXPECT_EQ(statsWith({{2, ""}, {2, "A"}}).dominantInputSourceID(), std::nullopt);
    EXPECT_TRUE(refreshed(statsWith({{10, ""}})).isActive);
}

TEST(SmartInputMethodAppStats, tellsTheShareInWholePercentRoundedDown)
{
    EXPECT_EQ(statsWith({{1, "A"}, {2, "B"}}).sharePercent("A"), 33);
    EXPECT_EQ(statsWith({{1, "A"}, {2, "B"}}).sharePercent("B"), 66);
    EXPECT_EQ(statsWith({{1, "A"}, {6, "B"}}).sharePercent("B"), 85);
    EXPECT_EQ(statsWith({{1, "A"}}).sharePercent("A"), 100);
    EXPECT_EQ(statsWith({{1, "A"}}).sharePercent("B"), 0);
}

TEST(SmartInputMethodAppStats, dividesBeforeItMultiplies)
{
    // 29 / 50 is a little less than 0.58 in binary, and 7 / 25 a little more than 0.28.
    EXPECT_EQ(statsWith({{29, "A"}, {21, "B"}}).sharePercent("A"), 57);
    EXPECT_EQ(statsWith({{57, "A"}, {43, "B"}}).sharePercent("A"), 56);
    EXPECT_EQ(statsWith({{7, "A"}, {18, "B"}}).sharePercent("A"), 28);
    EXPECT_EQ(statsWith({{28, "A"}, {22, "B"}}).sharePercent("A"), 56);
}

TEST(SmartInputMethodAppStats, reachesEachThresholdExactlyInEachWindow)
{
    for (const auto window : allCases<Window>())
        for (const auto ratio : allCases<Ratio>()) {
            const auto size = static_cast<std::size_t>(storedValue(window));
            const auto needed = size * static_cast<std::size_t>(storedValue(ratio)) / 100;
            const auto reached = statsWith({{needed, "A"}, {size - needed, "B"}});
            EXPECT_EQ(
                refreshed(reached, ratio, window), with(reached, "A", storedValue(ratio), true));
            const auto missed = statsWith({{needed - 1, "A"}, {size - needed + 1, "B"}});
            EXPECT_FALSE(refreshed(missed, ratio, window).isActive);
        }
}

TEST(SmartInputMethodAppStats, hasNoShareOfNothing)
{
    EXPECT_EQ(statsWith({}).sharePercent("A"), 0);
    EXPECT_EQ(statsWith({{3, "A"}}).sharePercent(std::nullopt), 0);
    EXPECT_EQ(statsWith({{3, ""}}).sharePercent(std::nullopt), 0);
}

TEST(SmartInputMethodAppStats, countsAHundredThousandSamples)
{
    const auto stats = statsWith({{30'000, "A"}, {70'000, "B"}});
    EXPECT_EQ(stats.dominantInputSourceID(), "B");
    EXPECT_EQ(stats.sharePercent("B"), 70);
    EXPECT_EQ(refreshed(stats).samples.size(), 10u);
}

} // namespace
} // namespace brindlex
