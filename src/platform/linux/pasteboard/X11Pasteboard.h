#pragma once

#include "foundation/Lifetime.h"
#include "foundation/Subscribers.h"
#include "platform/MainThread.h"
#include "platform/Pasteboard.h"
#include "platform/linux/pasteboard/X11ClipboardThread.h"

#include <atomic>
#include <cstdint>
#include <memory>

namespace brindlex {

/// The pasteboard of an X session: the selection `CLIPBOARD`.
///
/// A thread with its own connection to the server talks with the applications; here is what it has
/// read last. What is selected with the mouse (`PRIMARY`) is not on it, but see `shareWithMouse`.
class X11Pasteboard final : public Pasteboard {
public:
    /// `mainThread` outlives it.
    explicit X11Pasteboard(MainThread& mainThread, const PasteboardLimits& limits = {});

    std::int64_t changeCount() const override { return changeCount_; }
    Subscription observeChanges(std::function<void()> handler) override;
    std::vector<std::string> types() const override { return state_->types; }
    std::optional<std::string> text() const override { return state_->text; }
    std::vector<std::string> filePaths() const override { return state_->filePaths; }
    std::shared_ptr<const std::string> data(std::string_view type) const override;
    void write(PasteboardContent::Any content) override;

    /// Makes what the program has written what is selected with the mouse, too, for applications
    /// that paste only that; `isShared` is called from the loop once it is. Nothing is shared, but
    /// the call comes, when another application has copied since.
    void shareWithMouse(std::function<void()> isShared);

private:
    void take(std::shared_ptr<const PasteboardState> state, std::uint64_t writes);
    void change(std::shared_ptr<const PasteboardState> state);

    MainThread& mainThread_;
    std::int64_t changeCount_ = 0;
    std::shared_ptr<const PasteboardState> state_ = std::make_shared<const PasteboardState>();
    /// The program's own so far: what was read before the last of them is out of date.
    std::uint64_t writes_ = 0;
    Subscribers<std::function<void()>> observers_;
    std::atomic<bool> isObserved_ = false;
    Lifetime lifetime_;
    X11ClipboardThread thread_;
};

} // namespace brindlex
