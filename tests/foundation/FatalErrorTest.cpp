#include "foundation/FatalError.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

namespace brindlex {
namespace {

TEST(FatalErrorDeathTest, writesItsWordsWhereThereIsNoHandlerAndAborts)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(fatalError("The impossible happened"), testing::KilledBySignal(SIGABRT),
        "^The impossible happened\n$");
}

TEST(FatalErrorDeathTest, handsItsWordsToTheHandlerAndAborts)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            setFatalErrorHandler([](const std::string& message) {
                std::fprintf(stderr, "handled: %s\n", message.c_str());
            });
            fatalError("reason");
        },
        testing::KilledBySignal(SIGABRT), "^handled: reason\n$");
}

TEST(FatalErrorDeathTest, doesNotEnterAHandlerTwice)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            setFatalErrorHandler([](const std::string& message) {
                std::fprintf(stderr, "handled: %s\n", message.c_str());
                fatalError("again");
            });
            fatalError("reason");
        },
        testing::KilledBySignal(SIGABRT), "^handled: reason\nagain\n$");
}

} // namespace
} // namespace brindlex
