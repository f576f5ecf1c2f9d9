#pragma once

#include "foundation/Subscribers.h"
#include "platform/MainThread.h"
#include "platform/UserDefaults.h"
#include "platform/simulated/SimulatedJournal.h"

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// The preferences on the disk of a simulated computer, which its processes share.
class SimulatedPreferencesDisk {
public:
    using Values = std::map<std::string, PreferenceValue>;

    const Values& values() const { return values_; }

    /// Replaces everything, and notifies who watches the disk.
    void replace(Values values);

    Subscription observeWrites(std::function<void()> handler);

private:
    Values values_;
    Subscribers<std::function<void()>> subscribers_;
};

/// The preferences of one simulated process.
class SimulatedUserDefaults : public UserDefaults {
public:
    using Write = std::pair<std::string, std::optional<PreferenceValue>>;

    /// For a process alone on its computer: what is set stays in memory.
    explicit SimulatedUserDefaults(SimulatedJournal::Writer journal = {}) : journal_(journal) { }
    /// For a process beside others.
    SimulatedUserDefaults(SimulatedPreferencesDisk& disk, MainThread& mainThread);
    /// Ends as a process does, with everything on disk.
    ~SimulatedUserDefaults() override;

    std::optional<PreferenceValue> value(const std::string& key) const override;
    void set(const std::string& key, std::optional<PreferenceValue> object) override;
    void synchronize() override;
    Subscription observeChanges(std::function<void()> handler) override;

    /// Every `set` so far in order, those that changed nothing included.
    const std::vector<Write>& writes() const { return writes_; }

private:
    void bringToDisk();
    void takeFromDisk();

    SimulatedJournal::Writer journal_;
    mutable std::mutex mutex_;
    SimulatedPreferencesDisk::Values values_;
    std::set<std::string> unwritten_;
    std::vector<Write> writes_;
    Subscribers<std::function<void()>> subscribers_;

    SimulatedPreferencesDisk* disk_ = nullptr;
    MainThread* mainThread_ = nullptr;
    Subscription diskWrites_;
    Subscription nextWrite_;
    std::shared_ptr<SimulatedUserDefaults*> self_;
};

} // namespace brindlex
