#pragma once

#include "support/bus/BusConnection.h"
#include "support/screen/DesktopWindows.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What a screen reader finds in the windows of a program: its controls, by their names, and where
/// they are. The desktop has to have accessibility on.
class AccessibleControls {
public:
    /// Of the process, which may start later.
    explicit AccessibleControls(int process);

    /// Waits until there is a control of the role, such as "push button", whose name begins so, on
    /// the screen; where it is.
    std::optional<ScreenArea> find(const std::string& role, const std::string& name) const;

    /// Waits until anything in the windows has a name that begins so.
    bool says(const std::string& beginning) const;

    /// All that it finds now, a line for each, for the words of a failure.
    std::string report() const;

private:
    struct Object {
        std::string service{};
        std::string path{};
    };
    /// Sees an object; whether the search ends with it.
    using Visitor = std::function<bool(const Object&)>;

    std::optional<ScreenArea> findNow(const std::string& role, const std::string& name) const;
    bool visitAll(const Visitor& visit) const;
    bool visit(const Object& object, const Visitor& visit) const;
    std::vector<Object> childrenOf(const Object& object) const;
    std::string nameOf(const Object& object) const;
    std::string roleOf(const Object& object) const;
    std::optional<ScreenArea> areaOf(const Object& object) const;

    const int process_;
    std::unique_ptr<BusConnection> bus_;
};

} // namespace brindlex
