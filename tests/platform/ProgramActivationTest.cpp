#include "platform/ProgramActivation.h"

#include "platform/linux/panels/QtProgramActivation.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/basics/Eventually.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <QGuiApplication>
#include <QWindow>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedFocus {
public:
    ProgramActivation& activation() { return activation_; }
    void takeFocus() { activation_.becomeActive(); }
    void loseFocus() { activation_.resignActive(); }
    bool until(const std::function<bool()>& condition) { return condition(); }

private:
    SimulatedProgramActivation activation_;
};

/// A window of this program beside one of another.
class RealFocus {
public:
    RealFocus()
    {
        window_.setGeometry(100, 100, 200, 100);
        window_.show();
        loopUntil([&] { return windows_.managed().size() == 2; });
        loseFocus();
        loopUntil([] { return QGuiApplication::applicationState() != Qt::ApplicationActive; });
    }

    ProgramActivation& activation() { return activation_; }
    /// Until the window manager knows: it may be later than the window itself.
    void takeFocus()
    {
        const auto own = static_cast<xcb_window_t>(window_.winId());
        windows_.requestActivation(own);
        loopUntil([&] { return windows_.active() == own; });
    }
    void loseFocus() { windows_.requestActivation(other_.window()); }
    bool until(const std::function<bool()>& condition) { return loopUntil(condition); }
    /// Leaves the window library in ignorance of it.
    bool hasOtherFocus() const
    {
        return eventually([&] { return windows_.hasFocus(other_.window()); });
    }

private:
    XConnection server_;
    DesktopWindows windows_{server_};
    PlainWindow other_{server_, {.wmClass = wmClass("Other")}};
    QWindow window_;
    QtProgramActivation activation_;
};

template <typename Focus>
class ProgramActivationContract : public testing::Test {
protected:
    Focus focus;
    int notified = 0;
    Subscription observation = focus.activation().observeDidBecomeActive([this] { ++notified; });
    int resigned = 0;
    Subscription resignation = focus.activation().observeDidResignActive([this] { ++resigned; });
};

using Focuses = testing::Types<SimulatedFocus, RealFocus>;
TYPED_TEST_SUITE(ProgramActivationContract, Focuses);

TYPED_TEST(ProgramActivationContract, notifiesEachTimeTheProgramBecomesActive)
{
    EXPECT_FALSE(this->focus.activation().isActive());

    for (int time = 1; time <= 2; ++time) {
        this->focus.takeFocus();
        EXPECT_TRUE(this->focus.until([&] { return this->notified == time; }));
        EXPECT_TRUE(this->focus.activation().isActive());
        this->focus.loseFocus();
        EXPECT_TRUE(this->focus.until([&] { return this->resigned == time; }));
        EXPECT_FALSE(this->focus.activation().isActive());
        EXPECT_EQ(this->notified, time);
    }
}

TYPED_TEST(ProgramActivationContract, notifiesEachTimeTheProgramIsActiveNoMore)
{
    for (int time = 1; time <= 2; ++time) {
        this->focus.takeFocus();
        EXPECT_TRUE(this->focus.until([&] { return this->focus.activation().isActive(); }));
        EXPECT_EQ(this->resigned, time - 1);
        this->focus.loseFocus();
        EXPECT_TRUE(this->focus.until([&] { return this->resigned == time; }));
        EXPECT_FALSE(this->focus.activation().isActive());
    }
}

TYPED_TEST(ProgramActivationContract, notifiesNobodyWhoHasEndedTheSubscription)
{
    this->observation.reset();
    this->resignation.reset();
    this->focus.takeFocus();
    EXPECT_TRUE(this->focus.until([&] { return this->focus.activation().isActive(); }));
    this->focus.loseFocus();
    EXPECT_TRUE(this->focus.until([&] { return !this->focus.activation().isActive(); }));

    EXPECT_EQ(this->notified, 0);
    EXPECT_EQ(this->resigned, 0);
}

TEST(QtProgramActivation, isNotActiveAsSoonAsAnotherProgramHasTheKeys)
{
    RealFocus focus;
    focus.takeFocus();
    ASSERT_TRUE(focus.until([&] { return focus.activation().isActive(); }));

    focus.loseFocus();
    ASSERT_TRUE(focus.hasOtherFocus());

    EXPECT_FALSE(focus.activation().isActive());
}

} // namespace
} // namespace brindlex
