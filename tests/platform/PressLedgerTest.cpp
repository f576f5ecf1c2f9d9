#include "platform/PressLedger.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Kind = PressLedger::Kind;

TEST(PressLedger, sendsAReleaseWhereItsPressWent)
{
    PressLedger ledger;
    EXPECT_FALSE(ledger.pressed(1, Kind::button, 3, false));
    EXPECT_TRUE(ledger.pressed(1, Kind::button, 4, true));

    EXPECT_FALSE(ledger.released(1, Kind::button, 3));
    EXPECT_TRUE(ledger.released(1, Kind::button, 4));
    EXPECT_TRUE(ledger.isEmpty());
}

TEST(PressLedger, keepsDevicesAndKindsApart)
{
    PressLedger ledger;
    ledger.pressed(1, Kind::button, 3, false);
    ledger.pressed(2, Kind::button, 3, true);
    ledger.pressed(1, Kind::key, 3, true);

    EXPECT_TRUE(ledger.released(2, Kind::button, 3));
    EXPECT_TRUE(ledger.released(1, Kind::key, 3));
    EXPECT_FALSE(ledger.released(1, Kind::button, 3));
}

TEST(PressLedger, countsTwoPressesWithoutAReleaseAsTheFirst)
{
    for (const bool wentOn : {true, false})
        for (const bool secondWentOn : {true, false}) {
            PressLedger ledger;
            EXPECT_EQ(ledger.pressed(1, Kind::key, 9, wentOn), wentOn);
            EXPECT_FALSE(ledger.pressed(1, Kind::key, 9, secondWentOn));

            EXPECT_EQ(ledger.released(1, Kind::key, 9), wentOn);
            EXPECT_TRUE(ledger.isEmpty());
            EXPECT_TRUE(ledger.released(1, Kind::key, 9));
        }
}

TEST(PressLedger, knowsButtonsOfAnyNumber)
{
    PressLedger ledger;
    for (const std::int64_t number : {INT64_MIN, -1L, 0L, 31L, 32L, 64L, 255L, 256L, INT64_MAX}) {
        EXPECT_TRUE(ledger.pressed(1, Kind::button, number, true));
        EXPECT_TRUE(ledger.isOpen(1, Kind::button, number));
        EXPECT_FALSE(ledger.isOpen(1, Kind::key, number));
    }
    EXPECT_EQ(ledger.forget(1).size(), 9U);
    EXPECT_TRUE(ledger.isEmpty());
}

TEST(PressLedger, letsAReleaseOfAnEarlierPressGoOn)
{
    EXPECT_TRUE(PressLedger().released(1, Kind::button, 0));
}

TEST(PressLedger, knowsWhichPressesWaitForTheirRelease)
{
    PressLedger ledger;
    ledger.pressed(1, Kind::key, 9, false);

    EXPECT_TRUE(ledger.isOpen(1, Kind::key, 9));
    EXPECT_FALSE(ledger.isOpen(2, Kind::key, 9));
    EXPECT_FALSE(ledger.isOpen(1, Kind::button, 9));
    ledger.released(1, Kind::key, 9);
    EXPECT_FALSE(ledger.isOpen(1, Kind::key, 9));
}

TEST(PressLedger, releasesInPlaceOfADeviceThatHasGone)
{
    PressLedger ledger;
    ledger.pressed(1, Kind::button, 1, true);
    ledger.pressed(2, Kind::key, 30, true);
    ledger.pressed(2, Kind::button, 2, true);
    ledger.pressed(2, Kind::button, 3, false);
    ledger.pressed(3, Kind::button, 1, true);

    EXPECT_EQ(
        ledger.forget(2), (std::vector<PressLedger::Press>{{Kind::button, 2}, {Kind::key, 30}}));
    EXPECT_EQ(ledger.forget(2), std::vector<PressLedger::Press>{});
    EXPECT_TRUE(ledger.isOpen(1, Kind::button, 1));
    EXPECT_TRUE(ledger.isOpen(3, Kind::button, 1));
}

} // namespace
} // namespace brindlex
