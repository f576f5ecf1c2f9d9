#include "log/LogBacklog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr Date callTime = Date::fromUnixTime(1'794'795'385.123);

LogCall call(std::string_view message)
{
    return {LogLevel::warn, Log::Subsystem::finder, logCategory::mouse, message, {"A.cpp", 5}};
}

std::string textOf(const std::vector<LogChunk>& chunks)
{
    std::string text;
    for (const auto& chunk : chunks)
        for (const auto& line : chunk.lines)
            text += chunk.wholeLine(line);
    return text;
}

std::size_t lineCount(const std::vector<LogChunk>& chunks)
{
    std::size_t count = 0;
    for (const auto& chunk : chunks)
        count += chunk.lines.size();
    return count;
}

TEST(LogBacklog, keepsLinesAndTheirParts)
{
    LogBacklog backlog;
    backlog.append(callTime, call("one"));
    backlog.append(callTime, call("two\nlines"));
    const auto chunks = backlog.take(callTime);

    ASSERT_EQ(chunks.size(), 1u);
    const auto& chunk = chunks.front();
    EXPECT_EQ(chunk.text,
        "2026-11-16T02:16:25.123Z WARN   [mouse] Brindlex/A:5 — one\n"
        "2026-11-16T02:16:25.123Z WARN   [mouse] Brindlex/A:5 — two\nlines\n");
    ASSERT_EQ(chunk.lines.size(), 2u);
    const auto& line = chunk.lines.back();
    EXPECT_EQ(chunk.wholeLine(line),
        "2026-11-16T02:16:25.123Z WARN   [mouse] Brindlex/A:5 — two\nlines\n");
    EXPECT_EQ(chunk.category(line), "mouse");
    EXPECT_EQ(chunk.message(line), "two\nlines");
    EXPECT_EQ(line.level, LogLevel::warn);
    EXPECT_EQ(line.subsystem, Log::Subsystem::finder);
}

TEST(LogBacklog, isEmptyOnceItWasTaken)
{
    LogBacklog backlog;
    backlog.append(callTime, call("one"));
    (void)backlog.take(callTime);

    EXPECT_TRUE(backlog.take(callTime).empty());
}

TEST(LogBacklog, keepsTheOrderThroughChunksThatAreUsedAgain)
{
    LogBacklog backlog;
    for (int round = 0; round < 3; ++round) {
        std::string expected;
        for (int number = 0; number < 10'000; ++number) {
            const auto message = std::to_string(round) + " " + std::to_string(number);
            backlog.append(callTime, call(message));
            expected += "2026-11-16T02:16:25.123Z WARN   [mouse] Brindlex/A:5 — " + message + "\n";
        }
        auto chunks = backlog.take(callTime);
        EXPECT_GT(chunks.size(), 1u);
        EXPECT_EQ(textOf(chunks), expected);
        backlog.giveBack(chunks);
    }
}

TEST(LogBacklog, takesALineOfAnySizeWhileItIsEmpty)
{
    LogBacklog backlog(1'000);
    backlog.append(callTime, call(std::string(1'000'000, 'x')));
    backlog.append(callTime, call("dropped"));
    auto chunks = backlog.take(callTime);

    EXPECT_EQ(lineCount(chunks), 2u);
    EXPECT_NE(textOf(chunks).find("could be written: 1\n"), std::string::npos);
    backlog.giveBack(chunks);
    backlog.append(callTime, call("afterwards"));
    EXPECT_EQ(lineCount(backlog.take(callTime)), 1u);
}

TEST(LogBacklog, isBoundedAndSaysHowManyLinesThatCost)
{
    constexpr std::size_t limit = 1'000'000;
    LogBacklog backlog(limit);
    constexpr std::size_t count = 100'000;
    for (std::size_t number = 0; number < count; ++number)
        backlog.append(callTime, call("a message of a flood"));
    const auto chunks = backlog.take(callTime);

    std::size_t bytes = 0;
    for (const auto& chunk : chunks)
        bytes += chunk.text.size();
    EXPECT_LE(bytes, limit + 1'000);
    EXPECT_GT(bytes, limit - 1'000);
    const auto& last = chunks.back();
    EXPECT_EQ(last.message(last.lines.back()),
        "Log lines dropped, as they came faster than they could be written: "
            + std::to_string(count - (lineCount(chunks) - 1)));
    EXPECT_EQ(last.lines.back().level, LogLevel::warn);
    EXPECT_EQ(last.lines.back().subsystem, Log::Subsystem::app);
}

} // namespace
} // namespace brindlex
