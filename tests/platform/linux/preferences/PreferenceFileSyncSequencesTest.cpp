#include "platform/linux/preferences/PreferenceFileSyncSteps.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

using Timer = PreferenceFileSync::Timer;
using Finding = PreferenceFile::Finding;
using Keys = std::set<std::string>;

/// The timers, the file and the memory that a machine is used with, as a sequence of events has
/// left them.
struct World {
    PreferenceFileSync sync{};
    std::string events{};
    Keys changed{};
    std::optional<Keys> beingWritten{};
    /// Whether the file was set aside since the last write began.
    bool isLost = false;
    bool isLostBeingWritten = false;
    bool isLooking = false;
    std::set<Timer> running{};

    void carryOut(const PreferenceFileSync::Actions& actions)
    {
        using Action = PreferenceFileSync::Action;
        for (const auto& action : actions)
            match(
                action,
                [this](const Action::Write& due) {
                    EXPECT_FALSE(beingWritten) << events;
                    EXPECT_EQ(due.changedKeys, changed) << events;
                    beingWritten = std::exchange(changed, {});
                    isLostBeingWritten = std::exchange(isLost, false);
                },
                [this](const Action::Look&) {
                    EXPECT_FALSE(isLooking) << events;
                    isLooking = true;
                },
                [this](const Action::StartTimer& due) { running.insert(due.timer); },
                [this](const Action::StopTimer& due) {
                    EXPECT_EQ(running.erase(due.timer), 1U) << events;
                });
    }

    void change(const std::string& key)
    {
        changed.insert(key);
        carryOut(sync.change(key));
    }

    void fire(Timer timer)
    {
        running.erase(timer);
        carryOut(sync.fire(timer));
    }

    void endWrite(bool isWritten)
    {
        if (!isWritten)
            changed.insert(beingWritten->begin(), beingWritten->end());
        isLost |= std::exchange(isLostBeingWritten, false) && !isWritten;
        beingWritten.reset();
        carryOut(sync.endWrite(isWritten));
    }

    void endLook(Finding found)
    {
        isLooking = false;
        isLost |= found == Finding::setAside;
        carryOut(sync.endLook(found));
        EXPECT_TRUE(found != Finding::unsettled || running.contains(Timer::settle)) << events;
    }

    void check() const
    {
        auto pending = changed;
        if (beingWritten)
            pending.insert(beingWritten->begin(), beingWritten->end());
        EXPECT_EQ(sync.pendingKeys(), pending) << events;
        const bool goesOn
            = beingWritten || running.contains(Timer::write) || running.contains(Timer::retry);
        EXPECT_TRUE(changed.empty() || goesOn) << "Nothing writes" << text(changed) << events;
        EXPECT_TRUE(!isLost || goesOn) << "Nothing writes the file that was set aside" << events;
    }
};

using Event = std::pair<std::string, std::function<void(World&)>>;

/// What can happen next.
std::vector<Event> possibleEvents(const World& world)
{
    std::vector<Event> events{
        {"change a", [](World& next) { next.change("a"); }},
        {"change b", [](World& next) { next.change("b"); }},
        {"flush", [](World& next) { next.carryOut(next.sync.flush()); }},
        {"touch", [](World& next) { next.carryOut(next.sync.touch()); }},
    };
    for (const auto timer : world.running)
        events.emplace_back("fire " + text(timer), [timer](World& next) { next.fire(timer); });
    if (world.beingWritten)
        for (const bool isWritten : {true, false})
            events.emplace_back(isWritten ? "written" : "not written",
                [isWritten](World& next) { next.endWrite(isWritten); });
    if (world.isLooking)
        for (const auto found : {Finding::changed, Finding::unsettled, Finding::setAside})
            events.emplace_back("found " + std::to_string(static_cast<int>(found)),
                [found](World& next) { next.endLook(found); });
    return events;
}

/// Plays all sequences of that many events; how many there are.
int play(const World& world, int length)
{
    if (length == 0)
        return 1;
    int sequences = 0;
    for (const auto& [name, happen] : possibleEvents(world)) {
        auto next = world;
        next.events += "; " + name;
        happen(next);
        next.check();
        if (testing::Test::HasFailure())
            return sequences;
        sequences += play(next, length - 1);
    }
    return sequences;
}

TEST(PreferenceFileSync, losesNoChangeInAnySequenceOfSixEvents) { EXPECT_GT(play({}, 6), 40'000); }

} // namespace
} // namespace brindlex
