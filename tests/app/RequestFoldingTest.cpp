#include "app/RequestFolding.h"

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class RequestFoldingTest : public testing::Test {
protected:
    void request(int times)
    {
        for (int time = 0; time < times; ++time)
            requests.request();
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    int carriedOut = 0;
    RequestFolding requests{mainThread, 0.5, [this] { ++carriedOut; }};
};

TEST_F(RequestFoldingTest, carriesASingleRequestOutAtOnceAndOnce)
{
    request(1);
    EXPECT_EQ(carriedOut, 1);
    mainThread.advance(10);
    EXPECT_EQ(carriedOut, 1);
}

TEST_F(RequestFoldingTest, carriesOutThoseThatComeTogetherTwice)
{
    request(10'000);
    EXPECT_EQ(carriedOut, 1);
    mainThread.advance(0.49);
    EXPECT_EQ(carriedOut, 1);
    mainThread.advance(0.01);
    EXPECT_EQ(carriedOut, 2);
    mainThread.advance(10);
    EXPECT_EQ(carriedOut, 2);
}

TEST_F(RequestFoldingTest, carriesOneOutInEachIntervalOfAFlood)
{
    for (int step = 0; step < 100; ++step) {
        request(100);
        mainThread.advance(0.05);
    }
    EXPECT_EQ(carriedOut, 11);
}

TEST_F(RequestFoldingTest, carriesTheNextOneOutAtOnceAfterARest)
{
    request(1);
    mainThread.advance(0.5);
    request(1);
    EXPECT_EQ(carriedOut, 2);
}

TEST_F(RequestFoldingTest, forgetsWhatWasRequestedWhenCancelled)
{
    request(2);
    requests.cancel();
    mainThread.advance(10);
    EXPECT_EQ(carriedOut, 1);
}

} // namespace
} // namespace brindlex
