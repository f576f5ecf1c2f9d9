#pragma once

#include "platform/ApplicationOpening.h"
#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/panels/DesktopOverview.h"
#include "platform/linux/panels/QtWindowChooser.h"
#include "platform/linux/panels/X11WindowUse.h"
#include "platform/linux/x11/X11Connection.h"

#include <QObject>

namespace brindlex {

/// Opens what the program asks for by the path that it has on a Mac.
///
/// Mission Control is the overview of the desktop: that of GNOME or KDE where one of them is on the
/// session bus and shows it. Elsewhere it is a list of the open windows of all virtual desktops,
/// and the next time closes it; it comes from the loop, so that an event that asked for it goes on
/// at once. That a desktop does not show its overview, or that no window is open, is logged. Other
/// applications have no such path here, and nothing happens.
class X11ApplicationOpening : public ApplicationOpening {
public:
    X11ApplicationOpening(X11Connection& connection, const X11RunningApplications& applications);

    void open(const std::filesystem::path& application) override;

private:
    void toggleWindowsSoon();
    void toggleWindows();

    X11Connection& connection_;
    const X11RunningApplications& applications_;
    X11WindowUse windowUse_;
    QtWindowChooser chooser_;
    DesktopOverview overview_;
    QObject later_;
};

} // namespace brindlex
