#pragma once

#include "platform/ApplicationOpening.h"
#include "platform/linux/X11Connection.h"

namespace brindlex {

/// Opens what the program asks for by the path that it has on a Mac.
///
/// Mission Control is the overview of the desktop: that of GNOME or KDE where one of them answers
/// on the session bus. A desktop without an overview shows its windows side by side in no form at
/// all; there the empty desktop is shown, and the windows again with the next time. Other
/// applications have no such path here, and nothing happens.
class X11ApplicationOpening : public ApplicationOpening {
public:
    explicit X11ApplicationOpening(X11Connection& connection) : connection_(connection) { }

    void open(const std::filesystem::path& application) override;

private:
    X11Connection& connection_;
};

} // namespace brindlex
