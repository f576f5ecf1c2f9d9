#include "mouse/ResizeControlSearch.h"

#include "platform/simulated/SimulatedAccessibilityTree.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace brindlex {
namespace {

using Elements = std::vector<std::shared_ptr<SimulatedElement>>;

/// Elements with these roles, each the parent of the one before it.
Elements chain(std::initializer_list<const char*> roles)
{
    Elements elements;
    for (const auto* role : roles) {
        auto element = std::make_shared<SimulatedElement>();
        element->givenRole = role;
        if (!elements.empty())
            elements.back()->givenParent = element;
        elements.push_back(std::move(element));
    }
    return elements;
}

ResizeControlSearch search(const Elements& elements)
{
    SimulatedAccessibilityTree tree;
    if (!elements.empty())
        tree.element = elements.front();
    return searchResizeControl(tree, {5, 6});
}

TEST(ResizeControlSearch, findsEachOfThreeRoles)
{
    for (const auto* role : {"AXSplitter", "AXGrowArea", "AXHandle"})
        EXPECT_EQ(search(chain({role, "AXWindow"})),
            (ResizeControlSearch{true, {std::string("role=") + role}}));
    EXPECT_FALSE(search(chain({"AXSplitGroup"})).isFound);
    EXPECT_FALSE(search(chain({"axsplitter"})).isFound);
}

TEST(ResizeControlSearch, goesUpThreeParents)
{
    const auto third = search(chain({"AXCell", "AXRow", "AXGroup", "AXSplitter", "AXWindow"}));
    EXPECT_EQ(third.summary(),
        "resizeControl=true roles=role=AXCell > role=AXRow > role=AXGroup > role=AXSplitter");

    const auto fourth = search(chain({"AXCell", "AXRow", "AXGroup", "AXArea", "AXSplitter"}));
    EXPECT_EQ(fourth.summary(),
        "resizeControl=false roles=role=AXCell > role=AXRow > role=AXGroup > role=AXArea");
}

TEST(ResizeControlSearch, writesWhatAnElementTells)
{
    auto elements = chain({"AXCell", "AXTable"});
    elements[0]->givenSubrole = "AXNone";
    elements[0]->givenDescription = "cell";
    elements[1]->givenRole.reset();
    elements[1]->givenDescription = "table";

    EXPECT_EQ(search(elements).summary(),
        "resizeControl=false roles=role=AXCell,subrole=AXNone,description=cell > "
        "role=nil,description=table");
}

TEST(ResizeControlSearch, withoutAnElementIsEmpty)
{
    EXPECT_EQ(search({}), ResizeControlSearch{});
    EXPECT_EQ(search({}).summary(), "resizeControl=false roles=none");
}

TEST(ResizeControlSearch, givesEachElementThirtyMilliseconds)
{
    const auto elements = chain({"AXCell", "AXRow", "AXGroup", "AXWindow", "AXApplication"});
    SimulatedAccessibilityTree tree;
    tree.element = elements.front();

    searchResizeControl(tree, {5, 6});

    EXPECT_EQ(tree.questions, (std::vector<std::pair<Point, Seconds>>{{{5, 6}, 0.03}}));
    for (std::size_t element = 0; element < 4; ++element)
        EXPECT_EQ(elements[element]->messagingTimeout, 0.03);
    EXPECT_EQ(elements[4]->timesAsked, 0);
}

TEST(ResizeControlSearch, takesASlowReplyForNone)
{
    auto elements = chain({"AXSplitter", "AXHandle"});
    elements[0]->latency = 0.031;

    EXPECT_EQ(search(elements), (ResizeControlSearch{false, {"role=nil"}}));

    elements[0]->latency = 0.03;
    EXPECT_TRUE(search(elements).isFound);
}

} // namespace
} // namespace brindlex
