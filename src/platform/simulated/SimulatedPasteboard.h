#pragma once

#include "foundation/Lifetime.h"
#include "foundation/Subscribers.h"
#include "platform/MainThread.h"
#include "platform/PasteboardState.h"

#include <string>
#include <vector>

namespace brindlex {

/// A pasteboard that a test copies to, as other applications do. Main thread only.
class SimulatedPasteboard final : public Pasteboard {
public:
    /// What an application offers.
    using Offer = PasteboardState;

    explicit SimulatedPasteboard(MainThread& mainThread) : mainThread_(mainThread) { }

    std::int64_t changeCount() const override { return changeCount_; }
    Subscription observeChanges(std::function<void()> handler) override;
    std::vector<std::string> types() const override;
    std::optional<std::string> text() const override;
    std::vector<std::string> filePaths() const override;
    std::shared_ptr<const std::string> data(std::string_view type) const override;
    void write(PasteboardContent::Any content) override;

    /// Another application copies. Texts that are not well-formed become so.
    void copy(Offer offer);
    void copyText(const std::string& text);
    void copyFiles(const std::vector<std::string>& paths);
    void copyData(std::string_view type, const std::string& bytes);

    /// What is there.
    const Offer& offer() const { return offer_; }

    /// How often something was read so far, the change count left out.
    int reads() const { return reads_; }

private:
    void put(Offer offer);

    MainThread& mainThread_;
    std::int64_t changeCount_ = 0;
    Offer offer_;
    Subscribers<std::function<void()>> observers_;
    mutable int reads_ = 0;
    Lifetime lifetime_;
};

} // namespace brindlex
