#include "platform/PressLedger.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr auto button = PressLedger::Kind::button;
constexpr auto key = PressLedger::Kind::key;

TEST(PressLedger, sendsAReleaseWhereItsPressWent)
{
    PressLedger ledger;
    ledger.pressed(1, button, 3, false);
    ledger.pressed(1, button, 4, true);

    EXPECT_FALSE(ledger.released(1, button, 3));
    EXPECT_TRUE(ledger.released(1, button, 4));
    EXPECT_TRUE(ledger.isEmpty());
}

TEST(PressLedger, keepsDevicesAndKindsApart)
{
    PressLedger ledger;
    ledger.pressed(1, button, 3, false);
    ledger.pressed(2, button, 3, true);
    ledger.pressed(1, key, 3, true);

    EXPECT_TRUE(ledger.released(2, button, 3));
    EXPECT_TRUE(ledger.released(1, key, 3));
    EXPECT_FALSE(ledger.released(1, button, 3));
}

TEST(PressLedger, countsARepeatedKeyAsOnePress)
{
    PressLedger ledger;
    ledger.pressed(1, key, 9, true);
    ledger.pressed(1, key, 9, false);

    EXPECT_TRUE(ledger.released(1, key, 9));
    EXPECT_TRUE(ledger.isEmpty());
}

TEST(PressLedger, letsAReleaseOfAnEarlierPressGoOn)
{
    EXPECT_TRUE(PressLedger().released(1, button, 0));
}

TEST(PressLedger, knowsWhichPressesWaitForTheirRelease)
{
    PressLedger ledger;
    ledger.pressed(1, key, 9, false);

    EXPECT_TRUE(ledger.isOpen(1, key, 9));
    EXPECT_FALSE(ledger.isOpen(2, key, 9));
    EXPECT_FALSE(ledger.isOpen(1, button, 9));
    ledger.released(1, key, 9);
    EXPECT_FALSE(ledger.isOpen(1, key, 9));
}

TEST(PressLedger, releasesInPlaceOfADeviceThatHasGone)
{
    PressLedger ledger;
    ledger.pressed(1, button, 1, true);
    ledger.pressed(2, key, 30, true);
    ledger.pressed(2, button, 2, true);
    ledger.pressed(2, button, 3, false);
    ledger.pressed(3, button, 1, true);

    EXPECT_EQ(ledger.forget(2), (std::vector<PressLedger::Press>{{button, 2}, {key, 30}}));
    EXPECT_EQ(ledger.forget(2), std::vector<PressLedger::Press>{});
    EXPECT_TRUE(ledger.isOpen(1, button, 1));
    EXPECT_TRUE(ledger.isOpen(3, button, 1));
}

} // namespace
} // namespace brindlex
