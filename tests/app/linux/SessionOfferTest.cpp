#include "app/linux/SessionOffer.h"

#include <gtest/gtest.h>

#include <string_view>

namespace brindlex {
namespace {

SessionOffer offerWithDisplay(const char* display)
{
    return SessionOffer::fromEnvironment(
        [display](std::string_view name) { return name == "DISPLAY" ? display : nullptr; });
}

TEST(SessionOffer, hasX11WhereAnXServerIsNamed)
{
    EXPECT_TRUE(offerWithDisplay(":0").hasX11);
    EXPECT_TRUE(offerWithDisplay("localhost:10.0").hasX11);
}

TEST(SessionOffer, hasNoX11WithoutAName)
{
    EXPECT_FALSE(offerWithDisplay(nullptr).hasX11);
    EXPECT_FALSE(offerWithDisplay("").hasX11);
}

} // namespace
} // namespace brindlex
