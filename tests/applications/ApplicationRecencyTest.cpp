#include "applications/ApplicationRecency.h"

#include "platform/simulated/SimulatedComputer.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Identifiers = std::vector<std::string>;

/// The user works in the application with this number.
void useApplication(SimulatedComputer& computer, int number, const std::string& identifier)
{
    computer.applications.bringToFront(
        {.processIdentifier = ProcessIdentity{100 + number}, .bundleIdentifier = identifier});
}

TEST(ApplicationRecency, hasTheApplicationThatWasUsedLastFirst)
{
    SimulatedComputer computer;
    useApplication(computer, 1, "org.editor");
    const ApplicationRecency recency(computer.applications);

    useApplication(computer, 2, "org.mail");
    EXPECT_EQ(recency.use().recent, (Identifiers{"org.mail", "org.editor"}));

    useApplication(computer, 1, "org.editor");
    EXPECT_EQ(recency.use().recent, (Identifiers{"org.editor", "org.mail"}));
    EXPECT_EQ(recency.use().running, (std::set<std::string>{"org.editor", "org.mail"}));
}

TEST(ApplicationRecency, remembersTwenty)
{
    SimulatedComputer computer;
    const ApplicationRecency recency(computer.applications);

    for (int number = 0; number < 25; ++number)
        useApplication(computer, number, "org.app" + std::to_string(number));

    EXPECT_EQ(recency.use().recent.size(), 20U);
    EXPECT_EQ(recency.use().recent.front(), "org.app24");
    EXPECT_EQ(recency.use().recent.back(), "org.app5");
}

} // namespace
} // namespace brindlex
