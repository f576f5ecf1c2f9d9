#include "platform/simulated/SimulatedInput.h"

#include "foundation/FatalError.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

namespace brindlex {

class SimulatedInput::Tap : public EventTap {
public:
    Tap(SimulatedInput& input, EventMask mask, std::vector<EventInterest> interests,
        std::shared_ptr<const Handler> handler)
        : input_(input), mask_(mask), interests_(std::move(interests)), handler_(std::move(handler))
    {
        input_.taps_.insert(input_.taps_.begin(), this);
        ++input_.tapsMade_;
    }
    ~Tap() override
    {
        input_.journal_.add("tap ends");
        std::erase(input_.taps_, this);
    }

    void setEnabled(bool isEnabled) override
    {
        input_.journal_.add(isEnabled ? "tap on" : "tap off");
        isEnabled_ = isEnabled;
    }
    void switchOff() { isEnabled_ = false; }
    void setInterests(std::vector<EventInterest> interests) override
    {
        input_.journal_.add("tap interests");
        interests_ = std::move(interests);
    }

    EventMask mask() const { return mask_; }
    bool takes(EventType type) const { return isEnabled_ && (mask_ & eventMask(type)) != 0; }
    bool isWanted(const Event& event) const
    {
        return isEnabled_ && std::ranges::any_of(interests_, [&](const EventInterest& interest) {
            return isTrigger(event, interest);
        });
    }
    EventVerdict offer(const Event& event) const
    {
        const auto handler = handler_;
        return (*handler)(event);
    }

private:
    SimulatedInput& input_;
    EventMask mask_;
    std::vector<EventInterest> interests_;
    std::shared_ptr<const Handler> handler_;
    bool isEnabled_ = false;
};

namespace {

/// All that is posted comes as if from one more device.
constexpr PressLedger::DeviceIdentifier postingDevice = 0;

struct Press {
    PressLedger::Kind kind{};
    std::int64_t code = 0;
    bool isRelease = false;
};

/// What the event presses or releases, if it does.
std::optional<Press> pressIn(const Event& event)
{
    if (isMouseDown(event.type) || isMouseUp(event.type))
        return Press{PressLedger::Kind::button, event.value(EventField::mouseEventButtonNumber),
            isMouseUp(event.type)};
    if (event.type == EventType::keyDown || event.type == EventType::keyUp)
        return Press{PressLedger::Kind::key, event.value(EventField::keyboardEventKeycode),
            event.type == EventType::keyUp};
    return {};
}

} // namespace

SimulatedInput::~SimulatedInput()
{
    if (!taps_.empty())
        fatalError("A tap has outlived the input that it taps");
}

std::unique_ptr<EventTap> SimulatedInput::createTap(
    EventMask mask, std::vector<EventInterest> interests, Handler handler)
{
    std::ostringstream entry;
    entry << "tap 0x" << std::hex << mask;
    journal_.add(entry.str());
    if (refusesTaps_)
        return nullptr;
    newestHandler_ = std::make_shared<const Handler>(std::move(handler));
    return std::make_unique<Tap>(*this, mask, std::move(interests), newestHandler_);
}

bool SimulatedInput::post(const SyntheticEvent& event)
{
    if (cannotMake_ && cannotMake_(event))
        return false;
    journal_.add("post event " + std::to_string(static_cast<std::uint32_t>(event.type)));
    posted_.push_back(event.asPosted(cursor, heldFlags));
    runPosted();
    return true;
}

EventVerdict SimulatedInput::send(PressLedger::DeviceIdentifier device, const Event& event)
{
    const auto verdict
        = place_ == TapPlace::session ? sendThroughSession(event) : sendFromDevice(device, event);
    runPosted();
    return verdict;
}

EventVerdict SimulatedInput::sendThroughSession(const Event& event)
{
    const auto verdict = offer(event);
    if (verdict == EventVerdict::pass)
        delivered_.push_back(event);
    return verdict;
}

EventVerdict SimulatedInput::sendFromDevice(
    PressLedger::DeviceIdentifier device, const Event& event)
{
    auto& takenPresses = takenPresses_[device];
    const bool isTaken = !takenPresses.empty() || isWanted(event);
    const auto verdict = isTaken ? offer(event) : EventVerdict::pass;
    if (const auto press = pressIn(event)) {
        if (press->isRelease)
            takenPresses.erase({press->kind, press->code});
        else if (isTaken)
            takenPresses.insert({press->kind, press->code});
    }
    return handOn(device, event, verdict);
}

EventVerdict SimulatedInput::handOn(
    PressLedger::DeviceIdentifier device, const Event& event, EventVerdict verdict)
{
    if (const auto press = pressIn(event)) {
        if (press->isRelease)
            verdict = ledger_.released(device, press->kind, press->code) ? EventVerdict::pass
                                                                         : EventVerdict::swallow;
        else
            ledger_.pressed(device, press->kind, press->code, verdict == EventVerdict::pass);
    }
    if (verdict == EventVerdict::pass)
        delivered_.push_back(event);
    return verdict;
}

EventVerdict SimulatedInput::offer(const Event& event)
{
    const bool wasBusy = std::exchange(isBusy_, true);
    auto verdict = EventVerdict::pass;
    const auto present = taps_;
    for (auto* tap : present) {
        const bool isLive = std::ranges::find(taps_, tap) != taps_.end();
        if (isLive && tap->takes(event.type) && tap->offer(event) == EventVerdict::swallow) {
            verdict = EventVerdict::swallow;
            break;
        }
    }
    isBusy_ = wasBusy;
    return verdict;
}

bool SimulatedInput::isWanted(const Event& event) const
{
    return std::ranges::any_of(taps_, [&](const Tap* tap) { return tap->isWanted(event); });
}

void SimulatedInput::runPosted()
{
    while (!isBusy_ && !posted_.empty()) {
        const auto event = posted_.front();
        posted_.pop_front();
        if (place_ == TapPlace::session)
            sendThroughSession(event);
        else
            handOn(postingDevice, event, offer(event));
    }
}

void SimulatedInput::switchTapsOff(EventType reason)
{
    const auto present = taps_;
    for (auto* tap : present) {
        if (std::ranges::find(taps_, tap) == taps_.end())
            continue;
        tap->switchOff();
        tap->offer(Event{reason, {}, 0, {}});
    }
}

std::vector<EventMask> SimulatedInput::tapMasks() const
{
    std::vector<EventMask> masks;
    for (const auto* tap : taps_)
        masks.push_back(tap->mask());
    return masks;
}

} // namespace brindlex
