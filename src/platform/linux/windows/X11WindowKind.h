#pragma once

#include "platform/linux/x11/X11Properties.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlex {

/// What a window says that it is, as far as lists of windows need it.
struct X11WindowKind {
    bool isDesktop = false;
    /// A panel, a menu, a tooltip, a notification or a splash screen: nothing that a user works in.
    bool isFurniture = false;
    bool isHidden = false;
    bool isAbove = false;
    bool skipsTaskbar = false;

    bool operator==(const X11WindowKind&) const = default;
};

/// Reads the kinds of windows from the types and states that they have by the window manager's
/// rules (EWMH). Each of several types counts.
class X11WindowKinds {
public:
    /// `atomOf` gives the server's number of a name; it is called here only.
    explicit X11WindowKinds(const std::function<std::uint32_t(std::string_view)>& atomOf);

    X11WindowKind kindOf(
        std::span<const std::uint32_t> types, std::span<const std::uint32_t> states) const;

private:
    using Meanings = std::vector<std::pair<std::uint32_t, bool X11WindowKind::*>>;

    static void apply(
        const Meanings& meanings, std::span<const std::uint32_t> atoms, X11WindowKind& kind);

    Meanings types_;
    Meanings states_;
};

/// The request for the kind of one window; see `X11PropertyRequest`.
class X11WindowKindRequest {
public:
    X11WindowKindRequest(X11Connection& connection, xcb_window_t window);

    /// No kind at all for a window that says nothing or has gone. May be called once.
    X11WindowKind kind(const X11WindowKinds& kinds);

private:
    X11PropertyRequest types_;
    X11PropertyRequest states_;
};

} // namespace brindlex
