#include "desktop/ProgramDesk.h"
#include "support/daemons/FcitxDaemon.h"
#include "support/daemons/IBusDaemon.h"
#include "support/windows/PlainWindow.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// What differs between the daemons; the user does the same under each.
struct IBus {
    using Daemon = IBusDaemon;
    static constexpr auto name = "IBus";
    static constexpr auto latin = "xkb:us::eng";
    static constexpr auto chinese = "libpinyin";
    static constexpr auto latinSource = us;
    static constexpr auto chineseSource = "ibus:libpinyin";
};

struct Fcitx {
    using Daemon = FcitxDaemon;
    static constexpr auto name = "Fcitx 5";
    static constexpr auto latin = "keyboard-us";
    static constexpr auto chinese = "pinyin";
    static constexpr auto latinSource = us;
    static constexpr auto chineseSource = "fcitx5:pinyin";
};

template <typename T>
class InputMethodSwitching : public testing::Test {
protected:
    InputMethodSwitching()
    {
        desk_.applyRules({{"Alpha", T::chineseSource}, {"Beta", T::latinSource}});
    }

    bool selects(const std::string& engine)
    {
        return eventually([&] { return daemon_.current() == engine; });
    }
    /// Waits until the selection stays: no hand is faster than the look that makes sure of it.
    bool selectsForGood(const std::string& engine)
    {
        return eventually([&] {
            return throughout(
                std::chrono::milliseconds{600}, [&] { return daemon_.current() == engine; });
        });
    }

    bool getsChinese(TypingWindow& window)
    {
        return window.receives(
            "你好", desk_.input, "nihao ", [this] { return selectsForGood(T::chinese); });
    }

    ProgramDesk desk_{VirtualDesktop::Options{.keyboardLayouts = "us"}};
    typename T::Daemon daemon_{desk_.desktop, {T::latin, T::chinese}};
};

using Daemons = testing::Types<IBus, Fcitx>;
TYPED_TEST_SUITE(InputMethodSwitching, Daemons);

TYPED_TEST(InputMethodSwitching, followsTheApplicationInFront)
{
    auto& desk = this->desk_;
    TypingWindow alpha(desk.windows, "Alpha");
    TypingWindow beta(desk.windows, "Beta");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(this->getsChinese(alpha)) << alpha.text() << program.report();

    ASSERT_TRUE(desk.windows.activate(beta.window()));
    EXPECT_TRUE(this->selectsForGood(TypeParam::latin)) << program.report();
    desk.input.type("nihao");
    EXPECT_TRUE(beta.receives("nihao")) << beta.text();

    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(this->selects(TypeParam::chinese)) << program.report();
}

TYPED_TEST(InputMethodSwitching, letsTheUsersChoiceStandUntilTheContextChanges)
{
    auto& desk = this->desk_;
    TypingWindow alpha(desk.windows, "Alpha");
    TypingWindow beta(desk.windows, "Beta");
    TypingWindow gamma(desk.windows, "Gamma");
    ASSERT_TRUE(desk.windows.activate(beta.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    ASSERT_TRUE(this->selectsForGood(TypeParam::chinese)) << program.report();

    ASSERT_TRUE(this->daemon_.select(TypeParam::latin));
    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    desk.input.type("nihao");
    EXPECT_TRUE(alpha.receives("nihao")) << alpha.text();
    EXPECT_EQ(this->daemon_.current(), TypeParam::latin);
}

TYPED_TEST(InputMethodSwitching, findsTheDaemonThatWasStartedAgain)
{
    auto& desk = this->desk_;
    TypingWindow beta(desk.windows, "Beta");
    const RunningProgram program(desk.desktop);
    const auto hasFoundIt = [&](int times) {
        const auto found = std::string("Input sources come from ") + TypeParam::name;
        return eventually([&] {
            const auto messages = program.messages();
            return std::count(messages.begin(), messages.end(), found) == times;
        });
    };
    ASSERT_TRUE(hasFoundIt(1)) << program.report();

    this->daemon_.stop();
    this->daemon_.start();
    ASSERT_TRUE(hasFoundIt(2)) << program.report();

    TypingWindow alpha(desk.windows, "Alpha");
    EXPECT_TRUE(this->getsChinese(alpha)) << alpha.text() << program.report();
}

TYPED_TEST(InputMethodSwitching, outlivesTheDaemon)
{
    auto& desk = this->desk_;
    const TypingWindow alpha(desk.windows, "Alpha");
    const TypingWindow beta(desk.windows, "Beta");
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    this->daemon_.stop();
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(program.logs(std::string("Failed to select ") + TypeParam::chineseSource))
        << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST(InputMethodStartingLate, carriesOutTheRuleOfTheFrontOnceTheDaemonHasStarted)
{
    ProgramDesk desk({.keyboardLayouts = "us"});
    desk.applyRules({{"Alpha", IBus::chineseSource}});
    IBusDaemon daemon(desk.desktop, {IBus::latin, IBus::chinese});
    daemon.stop();
    const PlainWindow alpha(desk.server, {.wmClass = wmClass("Alpha"), .title = "Alpha"});
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.logs("Failed to select ibus:libpinyin for com.example.Alpha"))
        << program.report();

    daemon.start();

    EXPECT_TRUE(eventually([&] { return daemon.current() == IBus::chinese; })) << program.report();
}

} // namespace
} // namespace brindlex
