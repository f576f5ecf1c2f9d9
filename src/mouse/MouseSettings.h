#pragma once

#include "applications/AppIdentifierLoader.h"
#include "mouse/MouseConfigStore.h"

#include <cstddef>
#include <filesystem>
#include <functional>

namespace brindlex {

/// The least and the most points of the slider for the distance of a gesture, and its steps.
inline constexpr double leastGestureDistance = 10.0;
inline constexpr double mostGestureDistance = 100.0;
inline constexpr double gestureDistanceStep = 5.0;

/// What the settings of the mouse do, without their screen: every change is stored at once. Main
/// thread only.
class MouseSettings {
public:
    MouseSettings(MouseConfigStore& store, const AppIdentifierLoader& loader);

    const MouseConfig& config() const { return store_.config().value(); }
    /// Applies a change that has no operation of its own below.
    void change(const std::function<void(MouseConfig&)>& change);

    /// A binding of the side button "back" to the action `back`, behind all others.
    Uuid addClickBinding();
    void replaceClickBinding(const MouseClickBinding& binding);
    void removeClickBinding(const Uuid& id);
    /// Brings a removed binding back to its place, unless it is there.
    void restoreClickBinding(const MouseClickBinding& binding, std::size_t index);

    /// A drag to the right with the side button "back" and the action `forward`, behind all others.
    Uuid addGestureBinding();
    void replaceGestureBinding(const MouseGestureBinding& binding);
    void removeGestureBinding(const Uuid& id);
    void restoreGestureBinding(const MouseGestureBinding& binding, std::size_t index);

    /// Sets a value of the scrolling to that at the index of its steps.
    void setDurationStep(std::size_t index);
    void setSpeedStep(std::size_t index);
    void setAccelerationStep(std::size_t index);

    /// Leaves the wheel alone in the application at the path; an ERROR line where it cannot be
    /// read, and nothing where it is in the list.
    void addDisabledApp(const std::filesystem::path& bundlePath);
    void removeDisabledApp(const std::string& bundleID);
    void restoreDisabledApp(const AppIdentifier& app, std::size_t index);

private:
    MouseConfigStore& store_;
    const AppIdentifierLoader& loader_;
};

} // namespace brindlex
