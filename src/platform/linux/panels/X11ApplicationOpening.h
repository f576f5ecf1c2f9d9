#pragma once

#include "foundation/Subscription.h"
#include "platform/ApplicationOpening.h"
#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/panels/QtWindowChooser.h"
#include "platform/linux/panels/RecentWindows.h"
#include "platform/linux/windows/X11ActiveWindow.h"
#include "platform/linux/x11/X11Connection.h"

#include <QObject>

namespace brindlex {

/// Opens what the program asks for by the path that it has on a Mac.
///
/// Mission Control is the overview of the desktop: that of GNOME or KDE where one of them responds
/// on the session bus. Elsewhere it is a list of the open windows of all virtual desktops, and the
/// next time closes it; it comes from the loop, so that an event that asked for it goes on at once.
/// Where no window is open only the log says so. Other applications have no such path here, and
/// nothing happens.
class X11ApplicationOpening : public ApplicationOpening {
public:
    X11ApplicationOpening(X11Connection& connection, X11ActiveWindow& activeWindow,
        const X11RunningApplications& applications);

    void open(const std::filesystem::path& application) override;

private:
    void toggleWindows();

    X11Connection& connection_;
    const X11RunningApplications& applications_;
    RecentWindows recent_;
    QtWindowChooser chooser_;
    Subscription windowChanges_;
    QObject later_;
};

} // namespace brindlex
