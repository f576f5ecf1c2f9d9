#include "platform/linux/appearance/LinuxAppearance.h"

#include "platform/linux/appearance/GtkAppearance.h"
#include "platform/linux/appearance/KdeAppearance.h"

namespace brindlex {

LinuxAppearance::LinuxAppearance(X11Connection& display, const QDBusConnection& bus,
    const std::filesystem::path& configHome, DesktopFamily family)
    : family_(family), portal_(bus), xSettings_(display),
      gtk4_(configHome / "gtk-4.0/settings.ini", gtkFileAppearance),
      gtk3_(configHome / "gtk-3.0/settings.ini", gtkFileAppearance)
{
    if (family == DesktopFamily::kde)
        kde_.emplace(configHome / "kdeglobals", kdeAppearance);
    const auto follow = [this](const Observable<StatedAppearance>& source) {
        changes_.push_back(source.stream().withoutFirst().subscribe(
            [this](const StatedAppearance&) { choose(); }));
    };
    follow(portal_.current());
    follow(xSettings_.current());
    follow(gtk4_.current());
    follow(gtk3_.current());
    if (kde_)
        follow(kde_->current());
    choose();
}

void LinuxAppearance::choose()
{
    const auto chosen = chosenAppearance(
        {
            .portal = portal_.current().value(),
            .kde = kde_ ? kde_->current().value() : StatedAppearance{},
            .xSettings = xSettings_.current().value(),
            .gtk4 = gtk4_.current().value(),
            .gtk3 = gtk3_.current().value(),
        },
        family_);
    if (chosen != current_.value())
        current_.set(chosen);
}

} // namespace brindlex
