#include "inputmethod/SmartInputMethodRanking.h"

#include "support/switching/SwitchRecords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace brindlex {
namespace {

using Config = SmartInputMethodConfig;
using Top = std::optional<std::set<std::string>>;

std::string numbered(int number) { return "app" + std::to_string(100 + number); }

Config limitedTo(SmartInputMethodAppLimit limit)
{
    Config config;
    config.enabled = true;
    config.appLimit = limit;
    return config;
}

Config top10() { return limitedTo(SmartInputMethodAppLimit::top10); }

std::vector<Date> recent(std::size_t count) { return std::vector<Date>(count, today - 1); }

/// Ten applications with so many recent manual switches each.
Config tenWith(std::size_t count)
{
    auto config = top10();
    for (int number = 0; number < 10; ++number)
        config.appActivations[numbered(number)] = recent(count);
    return config;
}

bool isInTop(const Config& config, const std::string& bundleID)
{
    const auto top = config.topAppBundleIDs(today);
    return top && top->contains(bundleID);
}

TEST(SmartInputMethodRanking, hasNoLimitWhenUnlimited)
{
    auto config = limitedTo(SmartInputMethodAppLimit::unlimited);
    config.appActivations["a"] = recent(3);
    EXPECT_EQ(config.topAppBundleIDs(today), Top());
}

TEST(SmartInputMethodRanking, hasNoLimitWithoutScores)
{
    auto config = top10();
    EXPECT_EQ(config.topAppBundleIDs(today), Top());
    config.appStats = {statsOf("a", {})};
    config.appActivations = {{"b", {}}, {"c", {today - days180 - 1}}};
    EXPECT_EQ(config.topAppBundleIDs(today), Top());
}

TEST(SmartInputMethodRanking, takesAsManyAsTheLimitSays)
{
    const std::pair<SmartInputMethodAppLimit, int> limits[]
        = {{SmartInputMethodAppLimit::top10, 10}, {SmartInputMethodAppLimit::top20, 20},
            {SmartInputMethodAppLimit::top30, 30}, {SmartInputMethodAppLimit::top50, 50}};
    for (const auto& [limit, count] : limits) {
        auto config = limitedTo(limit);
        std::set<std::string> expected;
        for (int number = 0; number < 60; ++number) {
            config.appActivations[numbered(number)] = recent(static_cast<std::size_t>(number + 1));
            if (number >= 60 - count)
                expected.insert(numbered(number));
        }
        EXPECT_EQ(config.topAppBundleIDs(today), expected);
    }
}

TEST(SmartInputMethodRanking, takesAllWhenThereAreFewer)
{
    auto config = top10();
    config.appActivations = {{"a", recent(1)}, {"b", recent(7)}};
    config.appStats = {statsOf("c", samples(1, "german"))};
    EXPECT_EQ(config.topAppBundleIDs(today), Top({"a", "b", "c"}));
}

TEST(SmartInputMethodRanking, ordersEqualScoresByIdentifier)
{
    auto config = tenWith(3);
    config.appActivations["aaa"] = recent(3);
    config.appActivations["zzz"] = recent(3);
    auto expected = std::set<std::string>{"aaa"};
    for (int number = 0; number < 9; ++number)
        expected.insert(numbered(number));
    EXPECT_EQ(config.topAppBundleIDs(today), expected);
}

TEST(SmartInputMethodRanking, ordersIdentifiersByPlainText)
{
    auto config = tenWith(3);
    config.appActivations["Zebra"] = recent(3);
    config.appActivations["\xC3\xA4"] = recent(3);
    EXPECT_TRUE(isInTop(config, "Zebra"));
    EXPECT_FALSE(isInTop(config, "\xC3\xA4"));
}

TEST(SmartInputMethodRanking, scoresByTheLargerOfSwitchesAndSamples)
{
    auto config = tenWith(5);
    config.appStats = {statsOf("bySamples", samples(6, "german")),
        statsOf("bySwitches", samples(1, "german")), statsOf("byNeither", samples(5, "german"))};
    config.appActivations["bySamples"] = recent(2);
    config.appActivations["bySwitches"] = recent(6);
    config.appActivations["byNeither"] = recent(5);
    EXPECT_TRUE(isInTop(config, "bySamples"));
    EXPECT_TRUE(isInTop(config, "bySwitches"));
    EXPECT_FALSE(isInTop(config, "zzz"));
}

TEST(SmartInputMethodRanking, countsSwitchesFrom180DaysAgoOn)
{
    auto config = tenWith(1);
    const Date justOld{std::nextafter((today - days180).secondsSinceReferenceDate, 0.0)};
    config.appActivations["a"] = {today - days180};
    config.appActivations["b"] = {justOld, justOld};
    EXPECT_TRUE(isInTop(config, "a"));
    EXPECT_FALSE(isInTop(config, "b"));
}

TEST(SmartInputMethodRanking, countsSwitchesInAnyOrderOfTime)
{
    auto config = tenWith(2);
    config.appActivations["zzz"]
        = {today + 5000, today - days180 - 1, today - 1, today - days180 - 2, today - days180};
    EXPECT_TRUE(isInTop(config, "zzz"));
}

TEST(SmartInputMethodRanking, scoresAnApplicationWithOldSwitchesByItsSamples)
{
    auto config = tenWith(3);
    config.appActivations["zzz"] = std::vector<Date>(500, today - days180 - 1);
    EXPECT_FALSE(isInTop(config, "zzz"));
    config.appStats = {statsOf("zzz", samples(4, "german"))};
    EXPECT_TRUE(isInTop(config, "zzz"));
}

TEST(SmartInputMethodRanking, countsTheLaterOfTwoEntries)
{
    auto config = tenWith(3);
    config.appStats = {statsOf("zzz", samples(9, "german")), statsOf("zzz", samples(1, "german"))};
    EXPECT_FALSE(isInTop(config, "zzz"));
    std::swap(config.appStats[0], config.appStats[1]);
    EXPECT_TRUE(isInTop(config, "zzz"));
}

TEST(SmartInputMethodRanking, admitsALearnedRuleOfTheTopOnly)
{
    auto config = tenWith(11);
    config.appStats = {statsOf("zzz", samples(10, "german"))};
    EXPECT_EQ(config.activeSmartStats("zzz", today), std::nullopt);

    config.appActivations["zzz"] = recent(12);
    EXPECT_TRUE(config.activeSmartStats("zzz", today));

    config.appActivations["zzz"] = recent(11);
    EXPECT_EQ(config.activeSmartStats("zzz", today), std::nullopt);

    config.appLimit = SmartInputMethodAppLimit::top20;
    EXPECT_TRUE(config.activeSmartStats("zzz", today));
    config.appLimit = SmartInputMethodAppLimit::unlimited;
    config.appActivations.erase("zzz");
    EXPECT_TRUE(config.activeSmartStats("zzz", today));
}

TEST(SmartInputMethodRanking, losesALearnedRuleToTheTimeThatPasses)
{
    auto config = tenWith(9);
    config.appStats = {statsOf("zzz", samples(10, "german"))};
    config.appActivations["zzz"] = recent(12);
    for (auto& [bundleID, dates] : config.appActivations)
        if (bundleID != "zzz")
            dates = std::vector<Date>(11, today + days180);
    EXPECT_TRUE(config.activeSmartStats("zzz", today));
    EXPECT_EQ(config.activeSmartStats("zzz", today + days180), std::nullopt);
}

TEST(SmartInputMethodRanking, survivesDatesThatAreNone)
{
    auto config = tenWith(2);
    const auto nan = std::numeric_limits<double>::quiet_NaN();
    const auto infinity = std::numeric_limits<double>::infinity();
    config.appActivations["zzz"] = {{nan}, {nan}, {nan}, {-infinity}};
    EXPECT_FALSE(isInTop(config, "zzz"));
    config.appActivations["zzz"] = {{infinity}, {infinity}, {1e308}};
    EXPECT_TRUE(isInTop(config, "zzz"));
}

/// A few applications with few dates and samples each, so that ties, repetitions, dates out of
/// order and entries without dates are frequent.
Config randomConfig(std::mt19937& random)
{
    const auto below = [&](unsigned bound) { return static_cast<std::size_t>(random() % bound); };
    auto config = top10();
    const auto application = [&] { return numbered(static_cast<int>(below(20))); };
    for (auto left = below(25); left > 0; --left)
        config.appStats.push_back(statsOf(application(), samples(below(13), "german")));
    for (auto left = below(25); left > 0; --left) {
        auto& dates = config.appActivations[application()];
        for (auto more = below(14); more > 0; --more)
            dates.push_back(
                today - days180 * static_cast<double>(below(4)) / 2 + (below(2) ? 1 : -1));
    }
    return config;
}

TEST(SmartInputMethodRanking, admitsExactlyWhatStandsInTheTop)
{
    std::mt19937 random(42);
    int admitted = 0;
    int refused = 0;
    for (int round = 0; round < 1500; ++round) {
        const auto config = randomConfig(random);
        const auto limit = 1 + random() % 12;
        const SmartInputMethodRanking ranking(config, today);
        const auto top = ranking.top(limit);
        for (int number = 0; number < 21; ++number) {
            const auto bundleID = numbered(number);
            const bool expected = top.empty() || top.contains(bundleID);
            ASSERT_EQ(ranking.admits(bundleID, limit), expected)
                << "round " << round << " limit " << limit << " " << bundleID;
            ++(expected ? admitted : refused);
        }
    }
    EXPECT_GT(admitted, 3000);
    EXPECT_GT(refused, 3000);
}

/// The ranking in its plainest form.
std::set<std::string> plainTop(const Config& config, std::size_t limit)
{
    std::map<std::string, std::size_t> scores;
    for (const auto& stats : config.appStats)
        scores[stats.app.bundleID] = stats.samples.size();
    for (const auto& [bundleID, dates] : config.appActivations) {
        std::size_t count = 0;
        for (const auto date : dates)
            if (!(date < today - days180))
                ++count;
        scores[bundleID] = std::max(scores[bundleID], count);
    }
    std::vector<std::pair<std::size_t, std::string>> order;
    for (const auto& [bundleID, score] : scores)
        if (score >= 1)
            order.emplace_back(score, bundleID);
    std::stable_sort(order.begin(), order.end(),
        [](const auto& left, const auto& right) { return left.first > right.first; });
    if (order.size() > limit)
        order.resize(limit);
    std::set<std::string> top;
    for (const auto& [score, bundleID] : order)
        top.insert(bundleID);
    return top;
}

TEST(SmartInputMethodRanking, ranksLikeItsPlainestForm)
{
    std::mt19937 random(4242);
    for (int round = 0; round < 1500; ++round) {
        const auto config = randomConfig(random);
        const auto limit = 1 + random() % 12;
        ASSERT_EQ(SmartInputMethodRanking(config, today).top(limit), plainTop(config, limit))
            << "round " << round << " limit " << limit;
    }
}

} // namespace
} // namespace brindlex
