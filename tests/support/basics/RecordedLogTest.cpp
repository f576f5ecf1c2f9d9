#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

TEST(RecordedLog, recordsLevelCategoryAndMessage)
{
    RecordedLog log;

    Log::info("one", logCategory::ui);
    Log::notice("two", logCategory::lifecycle);
    Log::warn("three", logCategory::inputMethod);
    Log::error("", "own");

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [ui] one", "NOTICE [lifecycle] two", "WARN [input-method] three",
            "ERROR [own] "}));
}

TEST(RecordedLog, beginsAfreshAfterItsLinesWereTaken)
{
    RecordedLog log;
    Log::info("one", logCategory::ui);

    EXPECT_EQ(log.takeLines(), Lines{"INFO [ui] one"});
    Log::info("two", logCategory::ui);

    EXPECT_EQ(log.lines(), Lines{"INFO [ui] two"});
}

TEST(RecordedLog, putsBackWhatWasInstalledBefore)
{
    RecordedLog outer;
    {
        RecordedLog inner;
        Log::info("inner", logCategory::ui);
        EXPECT_EQ(inner.lines(), Lines{"INFO [ui] inner"});
    }

    Log::info("outer", logCategory::ui);

    EXPECT_EQ(outer.lines(), Lines{"INFO [ui] outer"});
}

TEST(RecordedLog, returnsFilesOfItsFolderOnceItHasOne)
{
    RecordedLog log;
    EXPECT_EQ(Log::fileURL(Log::Subsystem::app), std::nullopt);

    log.setFolder("/logs");

    EXPECT_EQ(Log::fileURL(Log::Subsystem::finder), "/logs/com.brindlex.Brindlex.finder.log");
}

TEST(RecordedLog, recordsTheDatesOfPruning)
{
    RecordedLog log;

    Log::prune(Date{5});

    EXPECT_EQ(log.prunes(), std::vector{Date{5}});
}

} // namespace
} // namespace brindlex
