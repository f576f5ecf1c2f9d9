#include "platform/linux/windows/DesktopGrid.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Layout = std::vector<std::uint32_t>;
using Desktops = std::vector<std::optional<std::uint32_t>>;

constexpr std::uint32_t byRows = 0;
constexpr std::uint32_t byColumns = 1;
constexpr std::uint32_t topLeft = 0;
constexpr std::uint32_t topRight = 1;
constexpr std::optional<std::uint32_t> none;

/// For each desktop the one so far beside it.
Desktops beside(std::int64_t count, const Layout& layout, int distance)
{
    const DesktopGrid grid(count, layout);
    Desktops desktops;
    for (std::int64_t desktop = 0; desktop < count; ++desktop)
        desktops.push_back(grid.beside(desktop, distance));
    return desktops;
}

TEST(DesktopGrid, isARowWithoutALayout)
{
    EXPECT_EQ(beside(4, {}, 1), (Desktops{1, 2, 3, none}));
    EXPECT_EQ(beside(4, {}, -1), (Desktops{none, 0, 1, 2}));
    EXPECT_EQ(beside(4, {}, 3), (Desktops{3, none, none, none}));
    EXPECT_EQ(beside(4, {byRows, 4, 1, topLeft}, 1), (Desktops{1, 2, 3, none}));
}

TEST(DesktopGrid, endsAtTheEndsOfEachRow)
{
    // 0 1
    // 2 3
    EXPECT_EQ(beside(4, {byRows, 2, 2, topLeft}, 1), (Desktops{1, none, 3, none}));
    EXPECT_EQ(beside(4, {byRows, 2, 2, topLeft}, -1), (Desktops{none, 0, none, 2}));
    EXPECT_EQ(beside(4, {byRows, 2, 0, topLeft}, 1), (Desktops{1, none, 3, none}));
    EXPECT_EQ(beside(4, {byRows, 0, 2, topLeft}, 1), (Desktops{1, none, 3, none}));
    EXPECT_EQ(beside(4, {byRows, 2, 2}, 1), (Desktops{1, none, 3, none}));
}

TEST(DesktopGrid, mayBeFilledColumnByColumn)
{
    // 0 2 4
    // 1 3
    EXPECT_EQ(beside(5, {byColumns, 3, 2, topLeft}, 1), (Desktops{2, 3, 4, none, none}));
    EXPECT_EQ(beside(5, {byColumns, 3, 2, topLeft}, -1), (Desktops{none, none, 0, 1, 2}));
}

TEST(DesktopGrid, mayBeginAtTheRight)
{
    // 1 0
    // 3 2
    EXPECT_EQ(beside(4, {byRows, 2, 2, topRight}, 1), (Desktops{none, 0, none, 2}));
    EXPECT_EQ(beside(4, {byRows, 2, 2, topRight}, -1), (Desktops{1, none, 3, none}));
}

TEST(DesktopGrid, hasGapsAtItsEnd)
{
    // 0 1
    // 2
    EXPECT_EQ(beside(3, {byRows, 2, 2, topLeft}, 1), (Desktops{1, none, none}));
}

TEST(DesktopGrid, isARowWhereTheLayoutCannotBe)
{
    const Desktops row{1, 2, none};
    EXPECT_EQ(beside(3, {byRows, 0, 0, topLeft}, 1), row);
    EXPECT_EQ(beside(3, {byRows, 1, 2, topLeft}, 1), row) << "too small";
    EXPECT_EQ(beside(3, {byRows, 2}, 1), row);
    EXPECT_EQ(beside(3, {byRows, 0xFFFFFFFF, 0xFFFFFFFF, topLeft}, 1), row);
}

TEST(DesktopGrid, hasNothingBesideWhatItDoesNotHave)
{
    const DesktopGrid grid(4, {});
    EXPECT_EQ(grid.beside(4, -1), none);
    EXPECT_EQ(grid.beside(-1, 1), none);
    EXPECT_EQ(DesktopGrid(0, {}).beside(0, 1), none);
}

} // namespace
} // namespace brindlex
