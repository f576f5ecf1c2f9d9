#pragma once

#include "app/AppLifecycleCoordinator.h"
#include "log/Log.h"
#include "support/basics/TemporaryFolder.h"
#include "support/switching/SimulatedDesktop.h"

#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

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
struct JournalledProcess {
    explicit JournalledProcess(SimulatedSessionServices& services) : desktop(services) { }
    ~JournalledProcess() { Log::install(logBefore); }

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

} // namespace brindlex
