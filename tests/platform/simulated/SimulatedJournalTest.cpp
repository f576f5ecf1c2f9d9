#include "platform/simulated/SimulatedJournal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

using Entries = std::vector<std::string>;

TEST(SimulatedJournal, keepsTheOrderOfAllWhoWriteToIt)
{
    SimulatedJournal journal;
    const SimulatedJournal::Writer one(&journal);
    const SimulatedJournal::Writer other(&journal);

    one.add("first");
    other.add("second");
    one.add("second");

    EXPECT_EQ(journal.entries(), (Entries{"first", "second", "second"}));
}

TEST(SimulatedJournal, beginsAfreshOnceItIsTaken)
{
    SimulatedJournal journal;
    journal.add("first");

    EXPECT_EQ(journal.take(), Entries{"first"});
    journal.add("second");

    EXPECT_EQ(journal.entries(), Entries{"second"});
}

TEST(SimulatedJournal, hasAnObservationAndItsEnd)
{
    SimulatedJournal journal;
    Entries whenItEnds;
    auto observation = SimulatedJournal::Writer(&journal).addObservation(
        "pages", Subscription([&] { whenItEnds = journal.entries(); }));
    EXPECT_EQ(journal.entries(), Entries{"observe pages"});
    EXPECT_EQ(whenItEnds, Entries{});

    observation.reset();

    EXPECT_EQ(whenItEnds, (Entries{"observe pages", "observe pages no more"}));
    EXPECT_EQ(journal.entries(), whenItEnds);
}

TEST(SimulatedJournal, mayBeMissing)
{
    const SimulatedJournal::Writer writer;
    bool hasEnded = false;

    writer.add("nowhere");
    auto observation = writer.addObservation("pages", Subscription([&] { hasEnded = true; }));
    EXPECT_FALSE(hasEnded);
    observation.reset();

    EXPECT_TRUE(hasEnded);
}

} // namespace
} // namespace brindlex
