#include "log/LogLine.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr Date launch = Date::fromUnixTime(1'794'795'385.123);

std::string lineOf(LogLevel level, std::string_view category, std::string_view message,
    CallSite site = {"/home/dev/brindlex/src/app/AppLifecycleCoordinator.cpp", 63})
{
    std::string text;
    appendLogLine(text, launch, {level, Log::Subsystem::app, category, message, site});
    return text;
}

TEST(LogLine, consistsOfTimeLevelCategoryLocationAndMessage)
{
    EXPECT_EQ(lineOf(LogLevel::notice, "lifecycle", "Brindlex launched"),
        "2026-11-16T02:16:25.123Z NOTICE [lifecycle] Brindlex/AppLifecycleCoordinator:63 — "
        "Brindlex launched\n");
}

TEST(LogLine, padsTheLevelToSixCharacters)
{
    const std::string rest = " [ui] Brindlex/AppLifecycleCoordinator:63 — m\n";
    const std::string time = "2026-11-16T02:16:25.123Z ";
    EXPECT_EQ(lineOf(LogLevel::info, "ui", "m"), time + "INFO  " + rest);
    EXPECT_EQ(lineOf(LogLevel::notice, "ui", "m"), time + "NOTICE" + rest);
    EXPECT_EQ(lineOf(LogLevel::warn, "ui", "m"), time + "WARN  " + rest);
    EXPECT_EQ(lineOf(LogLevel::error, "ui", "m"), time + "ERROR " + rest);
}

TEST(LogLine, keepsTheMessageAsItStands)
{
    const std::string head
        = "2026-11-16T02:16:25.123Z INFO   [ui] Brindlex/AppLifecycleCoordinator:63 — ";
    EXPECT_EQ(lineOf(LogLevel::info, "ui", ""), head + "\n");
    EXPECT_EQ(lineOf(LogLevel::info, "ui", "two\nlines\n"), head + "two\nlines\n\n");
    EXPECT_EQ(
        lineOf(LogLevel::info, "ui", " — [x] 漢字 🎛 "), head + " — [x] 漢字 🎛 \n");
    EXPECT_EQ(lineOf(LogLevel::info, "ui", std::string_view("a\0b", 3)),
        head + std::string("a\0b", 3) + "\n");
}

TEST(LogLine, replacesBytesThatAreNotUtf8)
{
    EXPECT_EQ(lineOf(LogLevel::info, "u\xFFi", "a\xC3(\xED\xA0\x80z"),
        "2026-11-16T02:16:25.123Z INFO   [u\uFFFDi] Brindlex/AppLifecycleCoordinator:63 — "
        "a\uFFFD(\uFFFD\uFFFD\uFFFDz\n");
}

TEST(LogLine, namesTheSourceFileByItsStem)
{
    const auto locationOf = [](std::string_view file, int line) {
        const auto text = lineOf(LogLevel::info, "ui", "m", {file, line});
        const auto begin = text.find("] ") + 2;
        return text.substr(begin, text.find(" — ") - begin);
    };
    EXPECT_EQ(locationOf("src/app/Log.cpp", 7), "Brindlex/Log:7");
    EXPECT_EQ(locationOf("Log.cpp", 2'000'000'000), "Brindlex/Log:2000000000");
    EXPECT_EQ(locationOf("/a.b/Makefile", 1), "Brindlex/Makefile:1");
    EXPECT_EQ(locationOf("/a/Log.test.cpp", 1), "Brindlex/Log.test:1");
    EXPECT_EQ(locationOf("", 0), "Brindlex/:0");
}

TEST(LogLine, isAppendedAndSaysWhereItsPartsStand)
{
    std::string text = "before\n";

    const auto parts = appendLogLine(
        text, launch, {LogLevel::warn, Log::Subsystem::app, "mouse", "message", {"A.cpp", 5}});

    EXPECT_EQ(text, "before\n2026-11-16T02:16:25.123Z WARN   [mouse] Brindlex/A:5 — message\n");
    EXPECT_EQ(parts.begin, 7u);
    EXPECT_EQ(text.substr(parts.categoryBegin, parts.categoryEnd - parts.categoryBegin), "mouse");
    EXPECT_EQ(text.substr(parts.messageBegin, parts.messageEnd - parts.messageBegin), "message");
    EXPECT_EQ(parts.messageEnd, text.size() - 1);
}

} // namespace
} // namespace brindlex
