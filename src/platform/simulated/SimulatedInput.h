#pragma once

#include "platform/EventPosting.h"
#include "platform/EventTap.h"
#include "platform/PressLedger.h"
#include "platform/simulated/SimulatedJournal.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace brindlex {

/// The input of a session, from the devices through the taps to the applications.
///
/// An event that is posted while a tap looks at another one waits until that one has gone its way,
/// and is then seen by the tap like those of the hardware.
class SimulatedInput : public EventTapping, public EventPosting {
public:
    /// Where taps sit. In the session they see all that happens, and what becomes of a press says
    /// nothing about its release. At the devices they take a device from a trigger to its last
    /// release and leave it alone otherwise, and a release goes where its press went.
    enum class TapPlace { session, devices };

    explicit SimulatedInput(
        TapPlace place = TapPlace::session, SimulatedJournal::Writer journal = {})
        : place_(place), journal_(journal)
    {
    }
    ~SimulatedInput() override;

    std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest> interests, Handler handler) override;
    bool post(const SyntheticEvent& event) override;
    /// Applications scroll by pixels here.
    void announceScroll(std::uint64_t, ScrollDistance) override { }
    void finishScroll() override { }

    /// An event of the hardware. The verdict of the tap, or what the place of the tap made of it.
    EventVerdict send(PressLedger::DeviceIdentifier device, const Event& event);

    /// What has reached the applications, in order; begins afresh.
    std::vector<Event> takeDelivered() { return std::exchange(delivered_, {}); }
    const std::vector<Event>& delivered() const { return delivered_; }

    /// Whether the system refuses to make taps.
    void setRefusesTaps(bool refuses) { refusesTaps_ = refuses; }

    /// Which events the system cannot make; none when empty.
    void setCannotMake(std::function<bool(const SyntheticEvent&)> cannotMake)
    {
        cannotMake_ = std::move(cannotMake);
    }

    /// Switches the taps off as the system does, and notifies them with the reason.
    void switchTapsOff(EventType reason);

    /// The masks of the taps that live, the newest first, and how many there ever were.
    std::vector<EventMask> tapMasks() const;
    std::size_t tapsMade() const { return tapsMade_; }

    /// The handler of the newest tap, also when that is gone: a system may call it late.
    Handler newestHandler() const { return newestHandler_ ? *newestHandler_ : nullptr; }

    PressLedger::DeviceIdentifier addDevice() { return ++devices_; }

    Point cursor{};
    std::uint64_t heldFlags = 0;

private:
    class Tap;
    using TakenPresses = std::set<std::pair<PressLedger::Kind, std::int64_t>>;

    EventVerdict offer(const Event& event);
    EventVerdict sendThroughSession(const Event& event);
    EventVerdict sendFromDevice(PressLedger::DeviceIdentifier device, const Event& event);
    EventVerdict handOn(
        PressLedger::DeviceIdentifier device, const Event& event, EventVerdict verdict);
    bool isWanted(const Event& event) const;
    void runPosted();

    TapPlace place_;
    SimulatedJournal::Writer journal_;
    std::vector<Tap*> taps_;
    std::deque<Event> posted_;
    std::vector<Event> delivered_;
    std::map<PressLedger::DeviceIdentifier, TakenPresses> takenPresses_;
    PressLedger ledger_;
    std::function<bool(const SyntheticEvent&)> cannotMake_;
    std::shared_ptr<const Handler> newestHandler_;
    bool refusesTaps_ = false;
    bool isBusy_ = false;
    std::size_t tapsMade_ = 0;
    PressLedger::DeviceIdentifier devices_ = 0;
};

} // namespace brindlex
