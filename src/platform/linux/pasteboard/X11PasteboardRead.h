#pragma once

#include "platform/linux/pasteboard/PasteboardFetch.h"
#include "platform/linux/pasteboard/X11SelectionRead.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Reads what the owner of the clipboard offers, as far as it is recorded: what it offers at all
/// (`TARGETS`), then one target after the other.
///
/// Of an owner that sends nothing, too much or not to the end, what has come until then is the
/// outcome. Its end ends the reading. One thread only, with a Qt loop.
class X11PasteboardRead {
public:
    struct Outcome {
        PasteboardState state{};
        /// What went wrong first, as it stands in lines of the log; empty when nothing did.
        std::string problem{};
    };
    /// Called once from the loop; the reading may be ended inside.
    using Handler = std::function<void(Outcome outcome)>;

    /// What it works with outlives the reading. `time` is the server's, of the owner's beginning.
    X11PasteboardRead(X11Connection& connection, X11RequestorWindows& windows,
        ImageConverting& images, xcb_timestamp_t time, const PasteboardLimits& limits,
        Handler handler);

private:
    void request(const std::string& target, X11SelectionRead::Handler handler);
    void takeTargets(X11SelectionRead::Outcome outcome);
    std::vector<std::string> namesOf(const std::string& atoms);
    void requestNext();
    void takeContent(const std::string& target, X11SelectionRead::Outcome outcome);
    void note(const std::string& target, SelectionProblem problem);
    void finish();

    X11Connection& connection_;
    X11RequestorWindows& windows_;
    ImageConverting& images_;
    const xcb_timestamp_t time_;
    const PasteboardLimits limits_;
    Handler handler_;
    std::optional<PasteboardFetch> fetch_;
    std::string problem_;
    bool isSilent_ = false;
    std::unique_ptr<X11SelectionRead> read_;
    QTimer deadline_;
};

} // namespace brindlex
