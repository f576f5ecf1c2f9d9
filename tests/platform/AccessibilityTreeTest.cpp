#include "platform/AccessibilityTree.h"

#include "platform/linux/accessibility/AccessibleElementTree.h"
#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedAccessibilityTree.h"
#include "support/browsers/FakeElements.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>

#include <chrono>

namespace brindlex {
namespace {

/// Time enough on any machine.
constexpr Seconds patience = 20;
constexpr Point centre{200, 150};

/// A thing around the centre, as this system calls it and as its own toolkit does.
struct Thing {
    std::string role{};
    std::uint32_t number = 0;
    std::string roleName{};
    Rect area{};
};

const Thing frame{"AXWindow", 23, "frame", {{50, 50}, {300, 200}}};
const Thing splitGroup{"AXSplitGroup", 53, "split pane", {{60, 60}, {280, 180}}};
const Thing button{"AXButton", 43, "push button", {{190, 140}, {20, 20}}};

class SimulatedScreen {
public:
    ~SimulatedScreen()
    {
        // A window is its own window.
        for (auto element = tree_.element; element; element = element->givenParent)
            element->givenWindow.reset();
    }

    AccessibilityTree& tree() { return tree_; }
    void show(const std::vector<Thing>& things)
    {
        std::shared_ptr<SimulatedElement> window;
        for (const auto& thing : things) {
            auto element = std::make_shared<SimulatedElement>();
            element->givenRole = thing.role;
            element->givenDescription = thing.roleName;
            element->givenPosition = thing.area.origin;
            element->givenSize = thing.area.size;
            element->givenParent = tree_.element;
            window = window ? window : element;
            element->givenWindow = window;
            tree_.element = element;
        }
    }
    void hang()
    {
        tree_.latency = 1e9;
        for (auto element = tree_.element; element; element = element->givenParent)
            element->latency = 1e9;
    }

private:
    SimulatedAccessibilityTree tree_;
};

class RealScreen {
public:
    RealScreen() { window_.show(); }

    AccessibilityTree& tree() { return tree_; }
    void show(const std::vector<Thing>& things)
    {
        things_.clear();
        for (const auto& thing : things)
            things_.push_back({thing.number, thing.roleName, "", thing.area,
                static_cast<int>(things_.size()) - 1});
        program_.offer(things_);
    }
    void hang() { program_.offer(things_, FakeElements::Behaviour::silent); }

private:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .accessibility = true}};
    XConnection server_;
    FakeElements program_;
    ApplicationWindow window_{server_, {.process = static_cast<std::uint32_t>(program_.process())}};
    std::vector<FakeElements::Element> things_;
    X11Connection connection_;
    SerialQueue queue_{"elements"};
    AccessibleElementTree tree_{connection_, queue_, patience};
};

template <typename Screen>
class AccessibilityTreeContract : public testing::Test {
protected:
    std::shared_ptr<AccessibilityElement> elementAt(Point point)
    {
        auto element = screen.tree().elementAt(point, patience);
        if (element)
            element->setMessagingTimeout(patience);
        return element;
    }

    Screen screen;
};

using Screens = testing::Types<SimulatedScreen, RealScreen>;
TYPED_TEST_SUITE(AccessibilityTreeContract, Screens);

TYPED_TEST(AccessibilityTreeContract, findsTheDeepestElement)
{
    this->screen.show({frame, splitGroup, button});

    const auto element = this->elementAt(centre);

    ASSERT_TRUE(element);
    EXPECT_EQ(element->role(), "AXButton");
    EXPECT_EQ(element->subrole(), std::nullopt);
    EXPECT_EQ(element->roleDescription(), "push button");
    EXPECT_EQ(element->position(), (Point{190, 140}));
    EXPECT_EQ(element->size(), (Size{20, 20}));
}

TYPED_TEST(AccessibilityTreeContract, leadsFromAnElementToTheOnesAroundIt)
{
    this->screen.show({frame, splitGroup, button});
    auto element = this->elementAt(centre);
    ASSERT_TRUE(element);

    std::vector<std::optional<std::string>> roles;
    for (int step = 0; step < 2 && element; ++step) {
        element = element->parent();
        if (!element)
            break;
        element->setMessagingTimeout(patience);
        roles.push_back(element->role());
    }

    EXPECT_EQ(roles, (std::vector<std::optional<std::string>>{"AXSplitGroup", "AXWindow"}));
}

TYPED_TEST(AccessibilityTreeContract, knowsTheWindowAroundAnElement)
{
    this->screen.show({frame, splitGroup, button});
    const auto element = this->elementAt(centre);
    ASSERT_TRUE(element);

    const auto window = element->window();

    ASSERT_TRUE(window);
    window->setMessagingTimeout(patience);
    EXPECT_EQ(window->role(), "AXWindow");
    EXPECT_EQ(window->position(), (Point{50, 50}));
    EXPECT_EQ(window->size(), (Size{300, 200}));
}

TYPED_TEST(AccessibilityTreeContract, hasNothingWhereNothingIsOffered)
{
    EXPECT_EQ(this->elementAt(centre), nullptr);
}

TYPED_TEST(AccessibilityTreeContract, requestsEachValueAnewAndWaitsNoLongerThanTheTimeout)
{
    this->screen.show({frame, button});
    const auto element = this->elementAt(centre);
    ASSERT_TRUE(element);
    element->setMessagingTimeout(0.03);
    this->screen.hang();
    const auto before = std::chrono::steady_clock::now();

    EXPECT_EQ(element->role(), std::nullopt);
    EXPECT_EQ(element->roleDescription(), std::nullopt);
    EXPECT_EQ(element->parent(), nullptr);
    EXPECT_EQ(element->position(), std::nullopt);
    EXPECT_EQ(element->size(), std::nullopt);
    EXPECT_EQ(this->screen.tree().elementAt(centre, 0.03), nullptr);

    // Six waits of 0.03 s, on a machine that may be busy.
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2));
}

} // namespace
} // namespace brindlex
