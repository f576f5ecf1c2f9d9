#pragma once

#include <QString>

/// Interfaces of the objects on the accessibility bus, by their names in
/// https://gitlab.gnome.org/GNOME/at-spi2-core/-/tree/main/xml.
namespace brindlex::accessibilityInterface {

inline const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
inline const QString component = QStringLiteral("org.a11y.atspi.Component");
inline const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace brindlex::accessibilityInterface
