#pragma once

#include "platform/InputSourceIdentifiers.h"
#include "platform/linux/inputsources/InputSourceBackend.h"
#include "platform/linux/inputsources/XkbRegistry.h"
#include "platform/linux/x11/X11Connection.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The groups of the X server's keyboard map as input sources, at most four.
///
/// A layout that stands in the map twice is a source each time; the second has "#2" behind its
/// identifier. Follows a change of the map, such as by `setxkbmap`, and of the group.
class XkbInputSources final : public InputSourceBackend {
public:
    XkbInputSources(X11Connection& connection, XkbRegistry& registry);

    std::string_view name() const override { return "XKB"; }
    bool isUsable() const override;
    std::optional<std::string> current() override;
    const std::vector<InputSource>& sources() override;
    SelectionStatus select(const std::string& id) override;

    /// The layouts of the groups.
    const std::vector<XkbLayout>& layouts();
    /// The group that keys are read with, without a round trip.
    int group() const { return group_; }
    /// Reads keys with another group from now on; whether the server did so. One round trip.
    bool lockGroup(int group);

private:
    void listen();
    void handle(const xcb_generic_event_t& event);
    void readGroup();

    X11Connection& connection_;
    XkbRegistry& registry_;
    std::uint8_t firstEvent_ = 0;
    bool hasExtension_ = false;
    int group_ = 0;
    std::optional<std::vector<XkbLayout>> layouts_;
    std::optional<std::vector<InputSource>> sources_;
    Subscription events_;
};

} // namespace brindlex
