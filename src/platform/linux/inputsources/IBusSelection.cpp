#include "platform/linux/inputsources/IBusSelection.h"

#include <algorithm>
#include <utility>

namespace brindlex {

std::optional<std::string> IBusSelection::engine() const
{
    return requested_ ? requested_->engine : selected_;
}

bool IBusSelection::request(Request request)
{
    if (!requested_ && selected_ == request.engine)
        return false;
    requested_ = std::move(request);
    return !called_;
}

IBusSelection::Request IBusSelection::beginCall()
{
    called_ = requested_;
    echoes_.push_back(called_->engine);
    return *called_;
}

bool IBusSelection::endCall(bool isRefused)
{
    const auto called = *std::exchange(called_, std::nullopt);
    if (isRefused) {
        std::erase(echoes_, called.engine);
        refused_ = called.engine;
    } else {
        selected_ = called.engine;
    }
    if (requested_->engine != called.engine)
        return false;
    requested_.reset();
    return true;
}

IBusSelection::Signal IBusSelection::follow(const std::string& engine)
{
    const auto echo = std::find(echoes_.begin(), echoes_.end(), engine);
    echoes_.erase(echoes_.begin(), echo == echoes_.end() ? echo : echo + 1);
    // Another selection of ours came after this one, and its own signal is on the way.
    if (!echoes_.empty())
        return Signal::echo;
    selected_ = engine;
    return std::exchange(refused_, std::nullopt) == engine ? Signal::late : Signal::choice;
}

} // namespace brindlex
