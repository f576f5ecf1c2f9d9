#pragma once

#include "platform/DisplayScale.h"
#include "platform/linux/x11/X11Connection.h"

#include <string_view>

namespace brindlex {

/// The scale in a list of X resources, by its line "Xft.dpi:" and 96 as the usual number of dots
/// per inch. 1 without such a line, and for one that is smaller, damaged or beyond all screens.
double scaleOf(std::string_view resources);

/// How large the desktop draws things, by the resource that desktops set and toolkits follow. A
/// change of it counts at once.
class X11DisplayScale final : public DisplayScale {
public:
    explicit X11DisplayScale(X11Connection& connection);

    double unitsPerPoint() const override { return scale_; }

private:
    void read();

    X11Connection& connection_;
    double scale_ = 1;
    Subscription events_;
};

} // namespace brindlex
