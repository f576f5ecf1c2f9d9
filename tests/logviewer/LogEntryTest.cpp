#include "logviewer/LogEntry.h"

#include "log/LogLine.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string launchLine = "2026-11-16T02:16:25.123Z NOTICE [lifecycle] "
                               "Brindlex/AppLifecycleCoordinator:63 — Brindlex launched";

LogEntry rawEntry(const std::string& line) { return {.id = "id", .message = line, .raw = line}; }

TEST(LogEntry, isTheInverseOfALine)
{
    EXPECT_EQ(parseLogLine(launchLine + "\n", "id"),
        (LogEntry{"id", dateFromISO8601("2026-11-16T02:16:25.123Z"), "2026-11-16T02:16:25.123Z",
            LogLevel::notice, "lifecycle", "Brindlex/AppLifecycleCoordinator:63",
            "Brindlex launched", launchLine}));
}

TEST(LogEntry, readsWhatTheWriterWritesForEachLevel)
{
    for (const auto level : {LogLevel::info, LogLevel::notice, LogLevel::warn, LogLevel::error}) {
        std::string line;
        const Date now{700'000'000.5};
        appendLogLine(line, now,
            {level, Log::Subsystem::app, "ui", "Ein — Text [mit] allem ✓", {"src/a/Some.cpp", 7}});

        const auto entry = parseLogLine(line, "");

        EXPECT_EQ(entry.level, level);
        EXPECT_EQ(entry.timestamp, now);
        EXPECT_EQ(entry.category, "ui");
        EXPECT_EQ(entry.location, "Brindlex/Some:7");
        EXPECT_EQ(entry.message, "Ein — Text [mit] allem ✓");
    }
}

TEST(LogEntry, isRawWhereTheLineHasAnotherForm)
{
    for (const std::string line : {"abc", "", " ", "a b", "a b c", "a b [c", "a b [c]", "a b [c] d",
             "a b [c] d - e", "a b [c] d—e", "\tat somewhere", "[c] — x"})
        EXPECT_EQ(parseLogLine(line, "id"), rawEntry(line)) << line;
}

TEST(LogEntry, keepsItsFieldsWithABadTimestamp)
{
    const auto entry = parseLogLine("yesterday WARN [mouse] place — text", "id");

    EXPECT_EQ(entry.timestamp, std::nullopt);
    EXPECT_EQ(entry.timestampString, "yesterday");
    EXPECT_EQ(entry.level, LogLevel::warn);
    EXPECT_EQ(entry.category, "mouse");
    EXPECT_EQ(entry.message, "text");
}

TEST(LogEntry, keepsItsFieldsWithAnUnknownLevel)
{
    for (const std::string level : {"RAW", "DEBUG", "info"}) {
        const auto entry = parseLogLine("now " + level + " [mouse] place — text", "id");

        EXPECT_EQ(entry.level, LogLevel::raw) << level;
        EXPECT_EQ(entry.category, "mouse");
        EXPECT_EQ(entry.message, "text");
    }
}

TEST(LogEntry, skipsSpacesBetweenTheFields)
{
    const auto entry = parseLogLine("now    INFO    [a b]   place — ", "id");

    EXPECT_EQ(entry.timestampString, "now");
    EXPECT_EQ(entry.category, "a b");
    EXPECT_EQ(entry.location, "place");
    EXPECT_EQ(entry.message, "");
}

TEST(LogEntry, takesHostileLinesAsTheyAre)
{
    const std::string nulls("a\0b", 3);
    EXPECT_EQ(parseLogLine(nulls, "id"), rawEntry(nulls));
    const std::string longLine(1'000'000, '[');
    EXPECT_EQ(parseLogLine(longLine, "id"), rawEntry(longLine));
}

} // namespace
} // namespace brindlex
