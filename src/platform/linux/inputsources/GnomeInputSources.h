#pragma once

#include "platform/linux/inputsources/IBusEngine.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// An input source as GNOME keeps it: "xkb" and a layout such as "de+nodeadkeys", or "ibus" and the
/// name of an engine.
struct GnomeInputSource {
    std::string kind{};
    std::string name{};

    bool operator==(const GnomeInputSource&) const = default;
};

/// Where GNOME keeps them among its settings.
inline constexpr auto gnomeInputSourcesKey = "/org/gnome/desktop/input-sources/sources";

/// Reads a list as the settings print it: "[('xkb', 'us'), ('ibus', 'libpinyin')]". What is no such
/// list has none.
std::vector<GnomeInputSource> gnomeInputSources(std::string_view text);

/// The names of the engines for the sources, in their order; a source may have none.
QStringList enginesFor(
    const std::vector<GnomeInputSource>& sources, const std::vector<IBusEngine>& engines);

/// Reads the settings beside the loop and hands over what they have, from the loop; never, once
/// `context` has gone. Without the program that reads settings there are none.
void readGnomeInputSources(
    QObject* context, std::function<void(const std::vector<GnomeInputSource>&)> handler);

} // namespace brindlex
