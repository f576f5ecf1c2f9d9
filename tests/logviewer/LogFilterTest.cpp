#include "logviewer/LogFilter.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Indexes = std::vector<std::size_t>;

const std::vector<LogEntry> someEntries{
    {.level = LogLevel::info, .category = "mouse", .location = "Brindlex/Tap:1", .message = "One"},
    {.level = LogLevel::notice, .category = "ui", .location = "Brindlex/View:2", .message = "Two"},
    {.level = LogLevel::warn, .category = "ui", .location = "Brindlex/View:3", .message = "ÄRGER"},
    {.level = LogLevel::error, .category = "ocr", .location = "", .message = "One more"},
    {.level = LogLevel::raw, .message = "at somewhere"},
};

Indexes found(const std::string& query) { return visibleEntries(someEntries, {.query = query}); }

TEST(LogFilter, showsEverythingAtFirst)
{
    EXPECT_EQ(visibleEntries(someEntries, {}), (Indexes{0, 1, 2, 3, 4}));
}

TEST(LogFilter, showsTheSelectedLevels)
{
    EXPECT_EQ(visibleEntries(someEntries, {.levels = {LogLevel::warn, LogLevel::error}}),
        (Indexes{2, 3}));
    EXPECT_EQ(visibleEntries(someEntries, {.levels = {LogLevel::raw}}), (Indexes{4}));
    EXPECT_EQ(visibleEntries(someEntries, {.levels = {}}), Indexes{});
}

TEST(LogFilter, findsTextInMessageCategoryAndLocationInWhateverCase)
{
    EXPECT_EQ(found("one"), (Indexes{0, 3}));
    EXPECT_EQ(found("UI"), (Indexes{1, 2}));
    EXPECT_EQ(found("view:3"), (Indexes{2}));
    EXPECT_EQ(found("ärger"), (Indexes{2}));
    EXPECT_EQ(found("one more or less"), Indexes{});
}

TEST(LogFilter, passesOverWhiteSpaceAtTheEndsOfTheText)
{
    EXPECT_EQ(found(" \n one \t"), (Indexes{0, 3}));
    EXPECT_EQ(found(" \n "), (Indexes{0, 1, 2, 3, 4}));
    EXPECT_EQ(found("one more"), (Indexes{3}));
}

TEST(LogFilter, doesNotFindTheTextOfTwoFieldsTogether)
{
    EXPECT_EQ(found("Onemouse"), Indexes{});
    EXPECT_EQ(found("mouseBrindlex"), Indexes{});
}

} // namespace
} // namespace brindlex
