#pragma once

#include "foundation/Subscription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// One window of this program, from its opening to its closing. No number is used twice.
enum class ProgramWindow : std::uint64_t {};

/// The windows of this program. Each scene, which is known by its identifier, has one window at the
/// most. Main thread only.
class ProgramWindows {
public:
    using Handler = std::function<void(const std::string& scene, ProgramWindow window)>;

    virtual ~ProgramWindows() = default;

    /// Whether the program has such a scene, so that `open` can open its window.
    virtual bool hasScene(const std::string& scene) const = 0;

    /// The window of the scene; nothing when it is not open.
    virtual std::optional<ProgramWindow> window(const std::string& scene) const = 0;

    /// Opens the window of the scene in its default size. Nothing happens when it is open or when
    /// there is no such scene.
    virtual void open(const std::string& scene) = 0;

    /// Asks for the window to be the frontmost one and to have the keys, from wherever it is:
    /// hidden, minimised, behind the windows of other programs, on another desktop. Whether it is
    /// visible and has the keys already when this returns: a desktop may need a moment, so that a
    /// later call returns true. False for a window that has been closed.
    virtual bool bringForward(ProgramWindow window) = 0;

    /// Whether it is open and not minimised; other windows may hide it.
    virtual bool isVisible(ProgramWindow window) const = 0;

    /// Notifies of each window that has been opened; `window` returns it already.
    virtual Subscription observeDidOpen(Handler handler) = 0;

    /// Notifies of each window that is closed, by the user or by the desktop; `window` returns it
    /// no more.
    virtual Subscription observeWillClose(Handler handler) = 0;
};

} // namespace brindlex
