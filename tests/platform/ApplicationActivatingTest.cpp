#include "platform/ApplicationActivating.h"

#include "platform/simulated/SimulatedApplicationActivating.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Two applications that run, of which the second is in front.
class SimulatedPair {
public:
    SimulatedPair()
    {
        applications_.bringToFront({ProcessIdentity{1}, "org.example.First"});
        applications_.bringToFront({ProcessIdentity{2}, "org.example.Second"});
    }

    ApplicationActivating& activating() { return activating_; }
    RunningApplications& applications() { return applications_; }
    RunningApplication first() const { return applications_.running()[0]; }
    RunningApplication second() const { return applications_.running()[1]; }
    void quitFirst() { applications_.quit(first().processIdentifier); }

private:
    SimulatedApplications applications_;
    SimulatedApplicationActivating activating_{applications_};
};

template <typename Pair>
class ApplicationActivatingContract : public testing::Test {
protected:
    Pair pair;
};

using Pairs = testing::Types<SimulatedPair>;
TYPED_TEST_SUITE(ApplicationActivatingContract, Pairs);

TYPED_TEST(ApplicationActivatingContract, bringsAnApplicationToTheFront)
{
    this->pair.activating().activate(this->pair.first().processIdentifier);
    EXPECT_EQ(this->pair.applications().frontmost(), this->pair.first());
}

TYPED_TEST(ApplicationActivatingContract, leavesTheOneInFrontWhereItIs)
{
    int notified = 0;
    const auto subscription
        = this->pair.applications().observeActivation([&](const auto&) { ++notified; });
    this->pair.activating().activate(this->pair.second().processIdentifier);
    EXPECT_EQ(this->pair.applications().frontmost(), this->pair.second());
    EXPECT_EQ(notified, 0);
}

TYPED_TEST(ApplicationActivatingContract, startsNoneThatHasQuit)
{
    const auto first = this->pair.first();
    this->pair.quitFirst();
    this->pair.activating().activate(first.processIdentifier);
    this->pair.activating().activate(ProcessIdentity::none);
    EXPECT_EQ(this->pair.applications().frontmost()->bundleIdentifier, "org.example.Second");
    EXPECT_EQ(this->pair.applications().running().size(), 1U);
}

} // namespace
} // namespace brindlex
