#include "platform/linux/input/TapChain.h"

#include "foundation/FatalError.h"

#include <algorithm>
#include <utility>

namespace brindlex {

class TapChain::Tap : public EventTap {
public:
    Tap(TapChain& chain, EventMask mask, std::vector<EventInterest> interests,
        EventTapping::Handler handler, std::function<void()> changed)
        : chain_(chain), mask_(mask), interests_(std::move(interests)),
          handler_(std::make_shared<const EventTapping::Handler>(std::move(handler))),
          changed_(std::move(changed))
    {
        chain_.taps_.insert(chain_.taps_.begin(), this);
    }

    ~Tap() override
    {
        std::erase(chain_.taps_, this);
        if (isEnabled_)
            changed_();
    }

    void setEnabled(bool isEnabled) override
    {
        if (std::exchange(isEnabled_, isEnabled) != isEnabled)
            changed_();
    }

    void setInterests(std::vector<EventInterest> interests) override
    {
        interests_ = std::move(interests);
        if (isEnabled_)
            changed_();
    }

    bool isEnabled() const { return isEnabled_; }
    bool sees(EventMask types) const { return isEnabled_ && (mask_ & types) != 0; }
    const std::vector<EventInterest>& interests() const { return interests_; }

    /// The tap may be gone afterwards.
    EventVerdict offer(const Event& event) const
    {
        const auto handler = handler_;
        return (*handler)(event);
    }

private:
    TapChain& chain_;
    EventMask mask_;
    std::vector<EventInterest> interests_;
    std::shared_ptr<const EventTapping::Handler> handler_;
    std::function<void()> changed_;
    bool isEnabled_ = false;
};

TapChain::~TapChain()
{
    if (!taps_.empty())
        fatalError("A tap has outlived the input that it taps");
}

std::unique_ptr<EventTap> TapChain::add(EventMask mask, std::vector<EventInterest> interests,
    EventTapping::Handler handler, std::function<void()> changed)
{
    return std::make_unique<Tap>(
        *this, mask, std::move(interests), std::move(handler), std::move(changed));
}

bool TapChain::sees(EventMask types) const
{
    return std::ranges::any_of(taps_, [&](const Tap* tap) { return tap->sees(types); });
}

std::vector<EventInterest> TapChain::interests() const
{
    std::vector<EventInterest> interests;
    for (const auto* tap : taps_)
        if (tap->isEnabled())
            interests.insert(interests.end(), tap->interests().begin(), tap->interests().end());
    return interests;
}

EventVerdict TapChain::offer(const Event& event) const
{
    const auto types = eventMask(event.type);
    if (!sees(types))
        return EventVerdict::pass;
    const bool wasOffering = std::exchange(isOffering_, true);
    auto verdict = EventVerdict::pass;
    const auto present = taps_;
    for (const auto* tap : present) {
        const bool isLive = std::ranges::find(taps_, tap) != taps_.end();
        if (isLive && tap->sees(types) && tap->offer(event) == EventVerdict::swallow) {
            verdict = EventVerdict::swallow;
            break;
        }
    }
    isOffering_ = wasOffering;
    return verdict;
}

void TapChain::switchOff(EventType reason)
{
    const auto present = taps_;
    for (auto* tap : present) {
        const bool isLive = std::ranges::find(taps_, tap) != taps_.end();
        if (!isLive || !tap->isEnabled())
            continue;
        tap->setEnabled(false);
        tap->offer({reason, {}, 0, {}});
    }
}

} // namespace brindlex
