#include "platform/linux/pasteboard/X11Pasteboard.h"

#include <utility>

namespace brindlex {

X11Pasteboard::X11Pasteboard(MainThread& mainThread, const PasteboardLimits& limits)
    : mainThread_(mainThread),
      thread_(limits, isObserved_,
          [this, alive = lifetime_.watch()](
              std::shared_ptr<const PasteboardState> state, std::uint64_t writes) {
              mainThread_.post([this, alive, state = std::move(state), writes] {
                  if (!alive.expired())
                      take(state, writes);
              });
          })
{
}

Subscription X11Pasteboard::observeChanges(std::function<void()> handler)
{
    thread_.waitUntilReady();
    isObserved_ = true;
    const auto observer = std::make_shared<Subscription>(observers_.add(std::move(handler)));
    return Subscription([this, alive = lifetime_.watch(), observer] {
        observer->reset();
        if (!alive.expired())
            isObserved_ = !observers_.isEmpty();
    });
}

std::shared_ptr<const std::string> X11Pasteboard::data(std::string_view type) const
{
    const auto found = state_->data.find(type);
    if (found == state_->data.end() || found->second.empty())
        return {};
    return {state_, &found->second};
}

void X11Pasteboard::write(PasteboardContent::Any content)
{
    ++writes_;
    const auto state = std::make_shared<const PasteboardState>(stateOf(std::move(content)));
    thread_.write(state);
    change(state);
}

void X11Pasteboard::shareWithMouse(std::function<void()> isShared)
{
    thread_.shareWithMouse([this, isShared = std::move(isShared)] { mainThread_.post(isShared); });
}

void X11Pasteboard::take(std::shared_ptr<const PasteboardState> state, std::uint64_t writes)
{
    if (writes == writes_)
        change(std::move(state));
}

void X11Pasteboard::change(std::shared_ptr<const PasteboardState> state)
{
    state_ = std::move(state);
    ++changeCount_;
    mainThread_.post([this, alive = lifetime_.watch()] {
        if (!alive.expired())
            observers_.notify();
    });
}

} // namespace brindlex
