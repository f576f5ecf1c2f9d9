#include "shell/SoftwareUpdateManager.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SoftwareUpdateManagerTest : public testing::Test {
protected:
    using Check = UpdateCheckResult;

    SoftwareUpdateManagerTest()
    {
        manager.onResult = [this](const Check::Any& result) { results.push_back(result); };
    }

    void publish(SimulatedHttpReading::Reply reply)
    {
        computer.network.replies.insert_or_assign(feedURL, std::move(reply));
    }

    void check()
    {
        manager.checkForUpdates();
        computer.mainThread.runUntilIdle();
    }

    const std::string feedURL = "https://brindlex.example/feed.json";
    const UpdateFeed published{{1, 2, 0, {}, ""}, "2026-11-22", "Faster.", "https://a.example/get"};
    SimulatedComputer computer;
    RecordedLog log;
    ProgramBundle program{
        .name = "Program", .shortVersion = "1.1.0", .commit = "", .updateFeedURL = feedURL};
    SoftwareUpdateManager manager{computer.network, program};
    std::vector<Check::Any> results;
};

TEST_F(SoftwareUpdateManagerTest, asksForNothingByItself)
{
    computer.mainThread.advance(100'000);

    EXPECT_EQ(computer.network.requests, std::vector<std::string>{});
    EXPECT_TRUE(manager.canCheckForUpdates().value());
}

TEST_F(SoftwareUpdateManagerTest, findsANewerVersion)
{
    publish(SimulatedHttpReading::Content{encodeUpdateFeed(published)});

    check();

    EXPECT_EQ(results, std::vector<Check::Any>{Check::Newer{published}});
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(SoftwareUpdateManagerTest, findsThatThisIsTheNewest)
{
    publish(SimulatedHttpReading::Content{encodeUpdateFeed(published)});
    program.shortVersion = "1.2.0";

    check();

    EXPECT_EQ(results, std::vector<Check::Any>{Check::Current{}});
}

TEST_F(SoftwareUpdateManagerTest, logsWhyACheckFailed)
{
    publish(SimulatedHttpReading::Status{404});

    check();

    EXPECT_EQ(results, (std::vector<Check::Any>{Check::Failed{Check::Reason::status, "404"}}));
    EXPECT_EQ(log.lines(), std::vector<std::string>{"WARN [lifecycle] Update check failed: 404"});
}

TEST_F(SoftwareUpdateManagerTest, takesAFeedOf64KiBAndNoMore)
{
    auto feed = encodeUpdateFeed(published);
    feed.resize(65'536, ' ');
    publish(SimulatedHttpReading::Content{feed});
    check();
    publish(SimulatedHttpReading::Content{feed + " "});
    check();

    EXPECT_EQ(results,
        (std::vector<Check::Any>{
            Check::Newer{published}, Check::Failed{Check::Reason::tooLarge, ""}}));
}

TEST_F(SoftwareUpdateManagerTest, waitsTenSecondsForAFeed)
{
    publish(SimulatedHttpReading::Silence{});

    check();
    computer.mainThread.advance(9.99);
    EXPECT_EQ(results, std::vector<Check::Any>{});
    computer.mainThread.advance(0.01);

    EXPECT_EQ(results,
        (std::vector<Check::Any>{Check::Failed{Check::Reason::timedOut, "no reply in time"}}));
}

TEST_F(SoftwareUpdateManagerTest, checksOnceAtATime)
{
    publish(SimulatedHttpReading::Silence{});
    std::vector<bool> states;
    const auto changes
        = manager.canCheckForUpdates().subscribe([&](bool can) { states.push_back(can); });

    manager.checkForUpdates();
    manager.checkForUpdates();
    computer.mainThread.advance(10);

    EXPECT_EQ(computer.network.requests, std::vector<std::string>{feedURL});
    EXPECT_EQ(results.size(), 1U);
    EXPECT_EQ(states, (std::vector<bool>{true, false, true}));
}

TEST_F(SoftwareUpdateManagerTest, checksAgainAsSoonAsItHasAResult)
{
    publish(SimulatedHttpReading::Status{500});
    manager.onResult = [this](const Check::Any& result) {
        results.push_back(result);
        if (results.size() < 3)
            manager.checkForUpdates();
    };

    check();

    EXPECT_EQ(results.size(), 3U);
}

TEST_F(SoftwareUpdateManagerTest, checksNothingWithoutAFeed)
{
    const ProgramBundle without{.name = "Program", .shortVersion = "1.1.0"};
    SoftwareUpdateManager idle(computer.network, without);

    idle.checkForUpdates();

    EXPECT_FALSE(idle.canCheckForUpdates().value());
    EXPECT_EQ(computer.network.requests, std::vector<std::string>{});
}

} // namespace
} // namespace brindlex
