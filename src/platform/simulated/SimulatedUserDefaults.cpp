#include "platform/simulated/SimulatedUserDefaults.h"

#include <utility>

namespace brindlex {
namespace {

/// Shorter than the time within which a write has to be on disk.
constexpr Seconds writeDelay = 0.05;

} // namespace

void SimulatedPreferencesDisk::replace(Values values)
{
    values_ = std::move(values);
    subscribers_.notify();
}

Subscription SimulatedPreferencesDisk::observeWrites(std::function<void()> handler)
{
    return subscribers_.add(std::move(handler));
}

SimulatedUserDefaults::SimulatedUserDefaults(SimulatedPreferencesDisk& disk, MainThread& mainThread)
    : values_(disk.values()), disk_(&disk), mainThread_(&mainThread),
      self_(std::make_shared<SimulatedUserDefaults*>(this))
{
    diskWrites_ = disk.observeWrites([this] {
        mainThread_->post([self = std::weak_ptr(self_)] {
            if (const auto present = self.lock())
                (*present)->takeFromDisk();
        });
    });
}

SimulatedUserDefaults::~SimulatedUserDefaults()
{
    diskWrites_.reset();
    bringToDisk();
}

std::optional<PreferenceValue> SimulatedUserDefaults::value(const std::string& key) const
{
    const std::lock_guard guard(mutex_);
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

void SimulatedUserDefaults::set(const std::string& key, std::optional<PreferenceValue> object)
{
    journal_.add((object ? "set " : "remove ") + key);
    writes_.emplace_back(key, object);
    const bool isKnown = value(key) == object;
    if (!isKnown) {
        const std::lock_guard guard(mutex_);
        if (object)
            values_.insert_or_assign(key, *std::move(object));
        else
            values_.erase(key);
    }
    unwritten_.insert(key);
    if (mainThread_ && !nextWrite_.isActive())
        nextWrite_ = mainThread_->after(writeDelay, [this] { bringToDisk(); });
    if (!isKnown)
        subscribers_.notify();
}

void SimulatedUserDefaults::synchronize()
{
    journal_.add("synchronize");
    bringToDisk();
    takeFromDisk();
}

Subscription SimulatedUserDefaults::observeChanges(std::function<void()> handler)
{
    return journal_.addObservation("preferences", subscribers_.add(std::move(handler)));
}

void SimulatedUserDefaults::bringToDisk()
{
    nextWrite_.reset();
    if (!disk_ || unwritten_.empty())
        return;
    auto merged = disk_->values();
    for (const auto& key : std::exchange(unwritten_, {})) {
        if (const auto present = value(key))
            merged.insert_or_assign(key, *present);
        else
            merged.erase(key);
    }
    disk_->replace(std::move(merged));
}

void SimulatedUserDefaults::takeFromDisk()
{
    if (!disk_)
        return;
    auto taken = disk_->values();
    for (const auto& key : unwritten_) {
        if (const auto present = value(key))
            taken.insert_or_assign(key, *present);
        else
            taken.erase(key);
    }
    if (taken == values_)
        return;
    {
        const std::lock_guard guard(mutex_);
        values_ = std::move(taken);
    }
    subscribers_.notify();
}

} // namespace brindlex
