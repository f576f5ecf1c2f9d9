#include "platform/linux/tray/BusMenu.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A menu without a bus, called as a host calls it.
class BusMenuTest : public testing::Test {
protected:
    BusMenuTest()
    {
        menu.setEntries({{7, "Look_up", false}, {}, {9, "Open"}});
        menu.onChoice = [this](int id) { chosen.push_back(id); };
    }

    MenuNode layout(int parent, int depth)
    {
        MenuNode node;
        revision = menu.GetLayout(parent, depth, {}, node);
        return node;
    }
    MenuNode child(int place) { return layout(0, -1).children.value(place).value<MenuNode>(); }

    BusMenu menu{QDBusConnection(QString())};
    std::vector<int> chosen;
    uint revision = 0;
};

TEST_F(BusMenuTest, hasItsEntriesBelowItsRoot)
{
    const auto root = layout(0, -1);

    EXPECT_EQ(root.id, 0);
    EXPECT_EQ(root.properties, menuRootProperties());
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(child(0).id, 7);
    EXPECT_EQ(child(0).properties, (QVariantMap{{"label", "Look__up"}, {"enabled", false}}));
    EXPECT_EQ(child(1).properties, (QVariantMap{{"type", "separator"}}));
    EXPECT_EQ(child(2).id, 9);
    EXPECT_EQ(child(2).properties, (QVariantMap{{"label", "Open"}, {"enabled", true}}));
}

TEST_F(BusMenuTest, isReadAsDeepAsAHostWants)
{
    EXPECT_TRUE(layout(0, 0).children.isEmpty());
    EXPECT_EQ(layout(0, 1).children.size(), 3);
    EXPECT_EQ(layout(9, -1).properties, child(2).properties);
    EXPECT_TRUE(layout(9, -1).children.isEmpty());
    EXPECT_TRUE(layout(1234, -1).children.isEmpty());
}

TEST_F(BusMenuTest, givesDividersNumbersOfTheirOwn)
{
    menu.setEntries({{1, "a"}, {}, {2, "b"}, {}, {3, "c"}});

    EXPECT_NE(child(1).id, child(3).id);
    EXPECT_GT(child(1).id, 3);
}

TEST_F(BusMenuTest, hasARevisionForEachChange)
{
    layout(0, -1);
    const auto first = revision;
    menu.setEntries({{7, "Look_up", false}, {}, {9, "Open"}});
    layout(0, -1);
    EXPECT_EQ(revision, first) << "nothing has changed";

    menu.setEntries({{7, "Look_up"}, {}, {9, "Open"}});

    layout(0, -1);
    EXPECT_GT(revision, first);
}

TEST_F(BusMenuTest, givesThePropertiesOfSeveralOrOfAll)
{
    const auto some = menu.GetGroupProperties({9, 1234}, {});
    ASSERT_EQ(some.size(), 1);
    EXPECT_EQ(some.front().id, 9);
    EXPECT_EQ(menu.GetGroupProperties({}, {}).size(), 3);
    EXPECT_EQ(menu.GetProperty(9, "label").variant(), "Open");
    EXPECT_EQ(menu.GetProperty(9, "nonsense").variant(), "");
}

TEST_F(BusMenuTest, takesClicksOnEnabledItemsAlone)
{
    for (const auto id : {0, 7, 9, 1234, -1})
        for (const auto* event : {"clicked", "hovered", "opened", "closed", ""})
            menu.Event(id, event, QDBusVariant(0), 0);

    EXPECT_EQ(chosen, std::vector{9});
}

TEST_F(BusMenuTest, takesEventsTogether)
{
    const auto unknown = menu.EventGroup({{1234, "clicked", QDBusVariant(0), 0},
        {9, "clicked", QDBusVariant(0), 0}, {7, "clicked", QDBusVariant(0), 0}});

    EXPECT_EQ(unknown, QList{1234});
    EXPECT_EQ(chosen, std::vector{9});
}

TEST_F(BusMenuTest, isAlwaysReadyToBeShown)
{
    EXPECT_FALSE(menu.AboutToShow(0));
    QList<int> unknown;
    EXPECT_TRUE(menu.AboutToShowGroup({0, 9, 1234}, unknown).isEmpty());
    EXPECT_EQ(unknown, QList{1234});
}

} // namespace
} // namespace brindlex
