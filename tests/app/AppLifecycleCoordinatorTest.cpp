#include "app/AppLifecycleCoordinator.h"

#include "platform/simulated/SimulatedMouse.h"
#include "support/RecordedLog.h"
#include "support/SimulatedDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>

namespace brindlex {
namespace {

/// Notes in one list what the program asks of its computer, in order.
struct Journal {
    std::vector<std::string> entries;
    void note(const std::string& entry)
    {
        if (entries.empty() || entries.back() != entry)
            entries.push_back(entry);
    }
};

struct JournalledContainer : AppGroupContainer {
    explicit JournalledContainer(Journal& journal) : journal_(journal) { }
    std::optional<std::filesystem::path> appGroupContainerURL() override
    {
        journal_.note("container");
        return folder_.path();
    }
    TemporaryFolder folder_;
    Journal& journal_;
};

struct JournalledDefaults : SimulatedUserDefaults {
    explicit JournalledDefaults(Journal& journal) : journal_(journal) { }
    void set(const std::string& key, std::optional<PreferenceValue> object) override
    {
        journal_.note("set " + key);
        SimulatedUserDefaults::set(key, std::move(object));
    }
    Journal& journal_;
};

struct JournalledNotifications : DistributedNotifications {
    JournalledNotifications(Journal& journal, DistributedNotifications& real)
        : journal_(journal), real_(real)
    {
    }
    void post(const std::string& name, const std::string& object) override
    {
        journal_.note("post " + name + " " + object);
        real_.post(name, object);
    }
    Subscription observe(
        const std::string& name, const std::string& object, std::function<void()> handler) override
    {
        journal_.note("observe " + name + " " + object);
        auto shared
            = std::make_shared<Subscription>(real_.observe(name, object, std::move(handler)));
        return Subscription([this, shared] {
            journal_.note("observe no more");
            shared->reset();
        });
    }
    Journal& journal_;
    DistributedNotifications& real_;
};

struct JournalledInstances : ProgramInstances {
    JournalledInstances(Journal& journal, ProgramInstances& real) : journal_(journal), real_(real)
    {
    }
    ProcessIdentifier current() const override { return real_.current(); }
    std::vector<ProcessIdentifier> running(const std::string& bundleID) override
    {
        journal_.note("list " + bundleID);
        return real_.running(bundleID);
    }
    void activate(ProcessIdentifier instance) override
    {
        journal_.note("activate the other");
        real_.activate(instance);
    }
    void terminate() override
    {
        journal_.note("terminate");
        real_.terminate();
    }
    Journal& journal_;
    ProgramInstances& real_;
};

struct JournalledApplications : RunningApplications {
    explicit JournalledApplications(Journal& journal) : journal_(journal) { }
    std::optional<RunningApplication> frontmost() const override { return front; }
    std::vector<RunningApplication> running() const override { return {}; }
    Subscription observeActivation(ActivationHandler) override
    {
        journal_.note("observe activations");
        return Subscription([this] { journal_.note("observe activations no more"); });
    }
    std::optional<RunningApplication> front;
    Journal& journal_;
};

struct JournalledTapping : EventTapping {
    explicit JournalledTapping(Journal& journal) : journal_(journal) { }
    std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest>, Handler) override
    {
        std::ostringstream entry;
        entry << "tap 0x" << std::hex << mask;
        journal_.note(entry.str());
        return std::make_unique<Tap>(journal_);
    }

    struct Tap : EventTap {
        explicit Tap(Journal& journal) : journal_(journal) { }
        ~Tap() override { journal_.note("tap ends"); }
        void setEnabled(bool) override { }
        void setInterests(std::vector<EventInterest>) override { }
        Journal& journal_;
    };
    Journal& journal_;
};

/// Notes log lines and prunings beside everything else.
class JournalledLog : public LogSink {
public:
    explicit JournalledLog(Journal& journal) : journal_(journal) { }
    void write(const LogCall& call) override
    {
        journal_.note("log " + std::string(rawValue(call.level)) + " [" + std::string(call.category)
            + "] " + std::string(call.message));
    }
    void prune(Date) override { journal_.note("prune"); }
    std::optional<std::filesystem::path> fileURL(Log::Subsystem) override { return {}; }

private:
    Journal& journal_;
};

/// A process of the program on a simulated desktop, with everything it asks noted.
struct Process {
    explicit Process(SimulatedSessionServices& services) : desktop(services) { }
    ~Process() { Log::install(logBefore); }

    Journal journal;
    std::shared_ptr<LogSink> logBefore = Log::install(std::make_shared<JournalledLog>(journal));
    SimulatedDesktop desktop;
    JournalledContainer container{journal};
    JournalledDefaults defaults{journal};
    JournalledNotifications notifications{journal, desktop.notifications};
    JournalledInstances instances{journal, desktop.instances};
    JournalledApplications applications{journal};
    JournalledTapping tapping{journal};
    Platform platform{desktop.mainThread, desktop.clock, defaults, desktop.userFolders, container,
        notifications, instances, applications, desktop.bundles, desktop.inputSources,
        desktop.browserPages, desktop.overlayPanel, desktop.activation, desktop.eventPermissions,
        tapping, desktop.input, desktop.displayLink, desktop.cursor, desktop.accessibility,
        desktop.windows, desktop.processes, desktop.opening};
    SharedInstances shared{platform};
    AppLifecycleCoordinator lifecycle{platform, shared};
};

const std::vector<std::string> wholeStart{
    "list com.brindlex.Brindlex",
    "container",
    "prune",
    "set selectedMainWindowTab",
    "set launchAtLogin",
    "set showsDockIcon",
    "set screenshotSaveDirectoryPath",
    "set screenshotHotkey",
    "set baiduOCRAPIToken",
    "set languagePreference",
    "set inputMethodConfig",
    "set smartInputMethodConfig",
    "set mouseConfig",
    "set clipboardHistoryEnabled",
    "set clipboardAutoPaste",
    "set clipboardMaxItems",
    "set clipboardHotkey",
    "set shouldRestoreFocusAfterLanguageRelaunch",
    "observe com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex",
    "set smartInputMethodConfig",
    "observe activations",
    "set smartInputMethodConfig",
    "tap 0x6000000",
    "tap ends",
    "tap 0x6400000",
    "log NOTICE [lifecycle] Brindlex launched",
};

/// Drags of the left button to the right, and nothing else.
MouseConfig leftGesture()
{
    MouseConfig config;
    config.gesture.bindings.push_back(
        {{}, MouseButton::left, {}, MouseDirection::right, MouseAction::Forward{}});
    return config;
}

TEST(AppLifecycleCoordinator, startsEverythingInItsOrder)
{
    SimulatedSessionServices services;
    Process process(services);

    process.lifecycle.start();

    EXPECT_EQ(process.journal.entries, wholeStart);
    EXPECT_TRUE(process.lifecycle.isStarted());
    for (const auto* folder : {"Logs", "Config", "Pending"})
        EXPECT_TRUE(is_directory(process.container.folder_.path() / folder)) << folder;
}

TEST(AppLifecycleCoordinator, stopsEverythingInItsOrder)
{
    SimulatedSessionServices services;
    Process process(services);
    process.lifecycle.start();
    process.journal.entries.clear();

    process.lifecycle.stop();

    EXPECT_EQ(process.journal.entries,
        (std::vector<std::string>{
            "log NOTICE [lifecycle] Brindlex will terminate",
            "set smartInputMethodConfig",
            "observe activations no more",
            "tap ends",
            "tap 0x400000",
            "tap ends",
            "observe no more",
        }));
}

TEST(AppLifecycleCoordinator, startsAndStopsClicksBeforeGesturesBeforeTheWheel)
{
    SimulatedSessionServices services;
    Process process(services);
    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, leftGesture());
    const auto taps = [&] {
        std::vector<std::string> made;
        for (const auto& entry : std::exchange(process.journal.entries, {}))
            if (entry.starts_with("tap 0x"))
                made.push_back(entry);
        return made;
    };

    process.lifecycle.start();
    EXPECT_EQ(
        taps(), (std::vector<std::string>{"tap 0x6000000", "tap 0x6000046", "tap 0x6400046"}));

    process.lifecycle.stop();
    EXPECT_EQ(taps(), (std::vector<std::string>{"tap 0x400046", "tap 0x400000"}));
}

TEST(AppLifecycleCoordinator, goesOnWithManagersThatMayNotStart)
{
    SimulatedSessionServices services;
    SimulatedDesktop desktop(services);
    RecordedLog log;
    SharedInstances shared(desktop.platform);
    AppLifecycleCoordinator lifecycle(desktop.platform, shared);
    shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, leftGesture());
    desktop.eventPermissions.set(false);

    lifecycle.start();

    EXPECT_EQ(log.takeLines(),
        (std::vector<std::string>{
            "WARN [mouse] MouseClick: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "WARN [mouse] MouseGesture: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "WARN [mouse] MouseScroll: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "NOTICE [lifecycle] Brindlex launched",
        }));
    EXPECT_EQ(desktop.input.tapMasks(), std::vector<EventMask>{});

    desktop.eventPermissions.set(true);
    desktop.mainThread.advance(2);
    EXPECT_EQ(desktop.input.tapMasks(), std::vector<EventMask>{0x6400046});
    EXPECT_EQ(log.takeLines(), std::vector<std::string>{});
}

TEST(AppLifecycleCoordinator, stopsWithoutHavingStarted)
{
    SimulatedSessionServices services;
    Process process(services);

    process.lifecycle.stop();

    EXPECT_EQ(process.journal.entries.front(), "log NOTICE [lifecycle] Brindlex will terminate");
    EXPECT_FALSE(process.shared.globalEventTap().isLive());
}

TEST(AppLifecycleCoordinator, wakesTheFirstInstanceAndStartsNothing)
{
    SimulatedSessionServices services;
    Process first(services);
    first.lifecycle.start();
    Process second(services);

    second.lifecycle.start();

    EXPECT_EQ(second.journal.entries,
        (std::vector<std::string>{
            "list com.brindlex.Brindlex",
            "post com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex",
            "activate the other",
            "terminate",
        }));
    EXPECT_FALSE(second.lifecycle.isStarted());
    EXPECT_TRUE(second.desktop.instances.isTerminating());
    EXPECT_EQ(services.session.activated,
        std::vector<ProgramInstances::ProcessIdentifier>{first.desktop.instances.current()});
}

TEST(AppLifecycleCoordinator, answersASecondLaunchBeforeTheUsersEyes)
{
    SimulatedSessionServices services;
    Process first(services);
    first.lifecycle.start();
    Process second(services);
    second.lifecycle.start();

    first.desktop.mainThread.runUntilIdle();

    EXPECT_EQ(first.desktop.overlayPanel.calls(), std::vector<std::string>{"show Brindlex"});
    first.desktop.mainThread.advance(0.8);
    EXPECT_TRUE(first.desktop.overlayPanel.isFading());
}

TEST(AppLifecycleCoordinator, doesNotLookForOthersAfterAChangeOfLanguage)
{
    SimulatedSessionServices services;
    Process first(services);
    first.lifecycle.start();
    Process relaunched(services);
    relaunched.shared.preferences().write(
        &UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch, true);
    relaunched.journal.entries.clear();

    relaunched.lifecycle.start();

    EXPECT_TRUE(relaunched.lifecycle.isStarted());
    EXPECT_EQ(relaunched.journal.entries.front(), "container");
    EXPECT_EQ(relaunched.journal.entries.back(), "log NOTICE [lifecycle] Brindlex launched");
}

TEST(AppLifecycleCoordinator, goesOnWithoutAContainer)
{
    SimulatedSessionServices services;
    SimulatedDesktop desktop(services);
    RecordedLog log;
    SharedInstances shared(desktop.platform);
    AppLifecycleCoordinator lifecycle(desktop.platform, shared);

    lifecycle.start();

    EXPECT_EQ(log.lines(), std::vector<std::string>{"NOTICE [lifecycle] Brindlex launched"});
    EXPECT_EQ(log.prunes(), std::vector<Date>{desktop.clock.now()});
}

TEST(AppLifecycleCoordinator, showsTheNameOfASourceFor800Milliseconds)
{
    SimulatedSessionServices services;
    SimulatedDesktop desktop(services);
    RecordedLog log;
    SharedInstances shared(desktop.platform);
    AppLifecycleCoordinator lifecycle(desktop.platform, shared);
    lifecycle.start();

    shared.inputMethodSwitchCoordinator().onSwitch("German");

    EXPECT_EQ(desktop.overlayPanel.text(), "German");
    desktop.mainThread.advance(0.79);
    EXPECT_FALSE(desktop.overlayPanel.isFading());
    desktop.mainThread.advance(0.01);
    EXPECT_TRUE(desktop.overlayPanel.isFading());
}

TEST(AppLifecycleCoordinator, followsRulesThatAnotherProcessWrites)
{
    SimulatedSessionServices services;
    SimulatedDesktop desktop(services);
    RecordedLog log;
    SharedInstances shared(desktop.platform);
    AppLifecycleCoordinator lifecycle(desktop.platform, shared);
    lifecycle.start();
    InputMethodConfig config;
    config.enabled = false;

    shared.preferences().write(&UserDefaultPreferenceKeys::inputMethodConfig, config);
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(shared.inputMethodConfigStore().config().value(), config);
    EXPECT_EQ(
        shared.inputMethodSwitchCoordinator().state().lifecycle, SwitchState::Lifecycle::stopped);
}

TEST(AppLifecycleCoordinator, followsMouseSettingsThatAnotherProcessWrites)
{
    SimulatedSessionServices services;
    SimulatedDesktop desktop(services);
    RecordedLog log;
    SharedInstances shared(desktop.platform);
    AppLifecycleCoordinator lifecycle(desktop.platform, shared);
    lifecycle.start();
    auto config = leftGesture();
    config.click.enabled = false;
    config.scroll.invertVertical = true;

    shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, config);
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(shared.mouseConfigStore().config().value(), config);
    EXPECT_EQ(desktop.input.tapMasks(), std::vector<EventMask>{0x400046});
    SimulatedMouse mouse(desktop.input);
    EXPECT_EQ(mouse.scroll(1), EventVerdict::swallow);
    ASSERT_EQ(desktop.input.delivered().size(), 1U);
    EXPECT_EQ(desktop.input.delivered()[0].value(EventField::scrollWheelEventPointDeltaAxis1), -10);
}

TEST(AppLifecycleCoordinator, startsWithDefaultsWhereTheMouseSettingsAreDamaged)
{
    SimulatedSessionServices services;
    SimulatedDesktop desktop(services);
    RecordedLog log;
    SharedInstances shared(desktop.platform);
    AppLifecycleCoordinator lifecycle(desktop.platform, shared);
    const std::string damaged = R"({"value":{"click":{"enabled":true,"bindings":[{}]}}})";
    desktop.defaults.set("mouseConfig", damaged);

    lifecycle.start();

    EXPECT_EQ(log.lines(),
        (std::vector<std::string>{
            "WARN [lifecycle] The preference \"mouseConfig\" cannot be read; the default applies",
            "NOTICE [lifecycle] Brindlex launched",
        }));
    EXPECT_EQ(shared.mouseConfigStore().config().value(), MouseConfig{});
    EXPECT_EQ(desktop.defaults.value("mouseConfig"), PreferenceValue(damaged));
    EXPECT_EQ(desktop.input.tapMasks(), std::vector<EventMask>{0x6400000});
}

} // namespace
} // namespace brindlex
