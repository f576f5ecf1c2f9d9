#include "platform/linux/network/FetcherHttpReading.h"

#include "support/loops/QtLoop.h"
#include "support/network/SecureServer.h"
#include "support/processes/RunningProgram.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class FetcherHttpReadingTest : public testing::Test {
protected:
    using Outcome = Result<std::string, HttpProblem>;
    using Kind = HttpProblem::Kind;

    static std::filesystem::path fetcher()
    {
        return programFile().replace_filename("brindlex-fetch");
    }

    Outcome read(const std::string& url, const std::filesystem::path& trusted,
        const HttpReading::Limits& limits = {.bytes = 1'000, .time = 60})
    {
        FetcherHttpReading network(loop.mainThread(), fetcher(), trusted);
        return outcomeOf(network, url, limits);
    }

    Outcome outcomeOf(
        HttpReading& network, const std::string& url, const HttpReading::Limits& limits)
    {
        std::optional<Outcome> outcome;
        const auto reading
            = network.read(url, limits, [&](const Outcome& found) { outcome = found; });
        EXPECT_TRUE(loop.runUntil([&] { return outcome.has_value(); }));
        return outcome.value_or(fail(HttpProblem{Kind::status, "no report"}));
    }

    Kind problemOf(const std::string& url, const HttpReading::Limits& limits)
    {
        const auto outcome = read(url, server.certificate(), limits);
        EXPECT_FALSE(outcome);
        return outcome ? Kind::status : outcome.error().kind;
    }

    /// Writes a program that takes the place of the fetcher.
    std::filesystem::path script(const std::string& text) const
    {
        const auto file = folder.path() / "script";
        write(file, "#!/bin/sh\n" + text + "\n");
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        return file;
    }

    TemporaryFolder folder;
    QtLoop loop;
    SecureServer server;
};

TEST_F(FetcherHttpReadingTest, trustsNoServerOfItsOwnAccord)
{
    const auto outcome = read(server.content("text"), "");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().kind, Kind::unreachable);
    EXPECT_EQ(outcome.error().detail, "SSL peer certificate or SSH remote key was not OK");
}

TEST_F(FetcherHttpReadingTest, trustsNoServerUnderAnotherName)
{
    const auto outcome = read(server.contentUnderAnotherName("text"), server.certificate());
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().kind, Kind::unreachable);
}

TEST_F(FetcherHttpReadingTest, isNotKeptByContentThatNeverEnds)
{
    EXPECT_EQ(problemOf(server.trickle(), {.bytes = 1'000'000, .time = 0.5}), Kind::timedOut);
    EXPECT_EQ(problemOf(server.flood(), {.bytes = 100'000, .time = 60}), Kind::tooLarge);
    EXPECT_EQ(problemOf(server.announced(1'001), {.bytes = 1'000, .time = 60}), Kind::tooLarge);
}

TEST_F(FetcherHttpReadingTest, isNotKeptByAFetcherThatHangs)
{
    FetcherHttpReading network(loop.mainThread(), script("exec sleep 100000"));
    const auto outcome = outcomeOf(network, "https://localhost", {.bytes = 1, .time = 0.01});
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error(), (HttpProblem{Kind::timedOut, "Timeout was reached"}));
}

TEST_F(FetcherHttpReadingTest, reportsAFetcherThatIsMissingOrEnds)
{
    FetcherHttpReading missing(loop.mainThread(), "/nowhere/fetcher");
    const auto nothing = outcomeOf(missing, "https://localhost", {.bytes = 1, .time = 60});
    ASSERT_FALSE(nothing);
    EXPECT_EQ(nothing.error().kind, Kind::unreachable);
    EXPECT_NE(nothing.error().detail.find("No such file or directory"), std::string::npos)
        << nothing.error().detail;

    FetcherHttpReading killed(loop.mainThread(), script("kill -KILL $$"));
    const auto end = outcomeOf(killed, "https://localhost", {.bytes = 1, .time = 60});
    ASSERT_FALSE(end);
    EXPECT_EQ(end.error().kind, Kind::unreachable);
}

TEST_F(FetcherHttpReadingTest, givesTheFetcherItsLimits)
{
    FetcherHttpReading network(
        loop.mainThread(), script("printf 'content\\n%s|' \"$@\""), "/etc/certificates");
    const auto outcome = outcomeOf(network, "https://a b", {.bytes = 65'536, .time = 10});
    ASSERT_TRUE(outcome);
    EXPECT_EQ(*outcome, "https://a b|content\n65536|content\n10000|content\n/etc/certificates|");
}

TEST_F(FetcherHttpReadingTest, leavesNoProcessBehind)
{
    const auto note = folder.path() / "process";
    FetcherHttpReading network(
        loop.mainThread(), script("echo $$ >'" + note.string() + "'; exec sleep 100000"));
    auto reading = network.read(
        "https://localhost", {.bytes = 1, .time = 60}, [](const Outcome&) { FAIL(); });
    ASSERT_TRUE(loop.runUntil([&] { return contentOf(note).ends_with("\n"); }));

    reading.reset();

    EXPECT_EQ(kill(std::stoi(contentOf(note)), 0), -1);
    EXPECT_EQ(errno, ESRCH);
}

} // namespace
} // namespace brindlex
