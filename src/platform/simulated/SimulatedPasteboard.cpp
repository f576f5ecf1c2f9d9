#include "platform/simulated/SimulatedPasteboard.h"

#include "foundation/Text.h"

#include <utility>

namespace brindlex {

Subscription SimulatedPasteboard::observeChanges(std::function<void()> handler)
{
    return observers_.add(std::move(handler));
}

std::vector<std::string> SimulatedPasteboard::types() const
{
    ++reads_;
    return offer_.types;
}

std::optional<std::string> SimulatedPasteboard::text() const
{
    ++reads_;
    return offer_.text;
}

std::vector<std::string> SimulatedPasteboard::filePaths() const
{
    ++reads_;
    return offer_.filePaths;
}

std::shared_ptr<const std::string> SimulatedPasteboard::data(std::string_view type) const
{
    ++reads_;
    const auto found = offer_.data.find(type);
    if (found == offer_.data.end() || found->second.empty())
        return {};
    return std::make_shared<const std::string>(found->second);
}

void SimulatedPasteboard::write(PasteboardContent::Any content)
{
    put(stateOf(std::move(content)));
}

void SimulatedPasteboard::copy(Offer offer)
{
    if (offer.text)
        offer.text = wellFormed(*offer.text);
    put(observers_.isEmpty() ? Offer{} : std::move(offer));
}

void SimulatedPasteboard::put(Offer offer)
{
    offer_ = std::move(offer);
    ++changeCount_;
    mainThread_.post([this, alive = lifetime_.watch()] {
        if (!alive.expired())
            observers_.notify();
    });
}

void SimulatedPasteboard::copyText(const std::string& text)
{
    copy({.types = {std::string(pasteboardType::plainText)}, .text = text});
}

void SimulatedPasteboard::copyFiles(const std::vector<std::string>& paths)
{
    copy({.types = {std::string(pasteboardType::fileURL)}, .filePaths = paths});
}

void SimulatedPasteboard::copyData(std::string_view type, const std::string& bytes)
{
    const std::string name(type);
    copy({.types = {name}, .data = {{name, bytes}}});
}

} // namespace brindlex
