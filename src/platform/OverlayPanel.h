#pragma once

#include <string>

namespace brindlex {

/// A short text over everything in the middle of the main screen, which takes neither focus nor
/// clicks. Main thread only.
class OverlayPanel {
public:
    virtual ~OverlayPanel() = default;

    /// Gets ready for the characters of the text, so that showing them for the first time is as
    /// quick as later. A panel that is always ready does nothing.
    virtual void warmUp(const std::string&) { }

    /// Shows the text instead of what is shown, ends a running fade and fades in.
    virtual void show(const std::string& text) = 0;

    /// Fades out; the panel is off the screen afterwards. Nothing happens when it is not shown.
    virtual void fadeOut() = 0;
};

} // namespace brindlex
