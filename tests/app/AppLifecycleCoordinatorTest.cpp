#include "app/AppLifecycleCoordinator.h"

#include "support/RecordedLog.h"
#include "support/SimulatedDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

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
    Platform platform{desktop.mainThread, desktop.clock, defaults, desktop.userFolders, container,
        notifications, instances, applications, desktop.bundles, desktop.inputSources,
        desktop.browserPages, desktop.overlayPanel};
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
    "log NOTICE [lifecycle] Brindlex launched",
};

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
            "observe no more",
        }));
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

} // namespace
} // namespace brindlex
