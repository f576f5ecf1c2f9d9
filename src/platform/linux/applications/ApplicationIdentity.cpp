#include "platform/linux/applications/ApplicationIdentity.h"

#include "foundation/Text.h"
#include "platform/ApplicationIdentifiers.h"
#include "platform/linux/applications/KnownApplications.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brindlex {
namespace {

/// Programs that run many applications: that an entry starts one says nothing about its windows.
bool runsOthers(std::string_view program)
{
    constexpr std::array exact{"bash", "bwrap", "dash", "dotnet", "env", "flatpak", "java", "javaw",
        "mono", "node", "sh", "snap", "sudo", "xdg-open", "zsh"};
    constexpr std::array families{
        "electron", "gjs", "perl", "php", "python", "qml", "ruby", "wine"};
    return std::find(exact.begin(), exact.end(), program) != exact.end()
        || std::any_of(families.begin(), families.end(),
            [&](std::string_view family) { return program.starts_with(family); });
}

/// The first entry in the menus for which the test holds, else the first of the others.
template <typename Test>
const DesktopEntry* find(const std::vector<DesktopEntry>& entries, Test test)
{
    const DesktopEntry* outsideMenus = nullptr;
    for (const auto& entry : entries) {
        if (!test(entry))
            continue;
        if (entry.isInMenus)
            return &entry;
        if (!outsideMenus)
            outsideMenus = &entry;
    }
    return outsideMenus;
}

template <typename Test>
const DesktopEntry* findByNames(
    const WindowOrigin& origin, const std::vector<DesktopEntry>& entries, Test test)
{
    for (const auto& name : {origin.instance, origin.className}) {
        if (name.empty())
            continue;
        if (const auto* entry
            = find(entries, [&](const DesktopEntry& each) { return test(each, name); }))
            return entry;
    }
    return nullptr;
}

const DesktopEntry* onlyStarterOf(
    const std::string& program, const std::vector<DesktopEntry>& entries)
{
    if (program.empty() || runsOthers(program))
        return nullptr;
    const auto starts = [&](const DesktopEntry& entry) {
        return !entry.runsInTerminal && entry.program == program;
    };
    const auto* found = find(entries, starts);
    const bool isAlone
        = found && std::none_of(entries.begin(), entries.end(), [&](const DesktopEntry& other) {
              return &other != found && other.isInMenus == found->isInMenus && starts(other);
          });
    return isAlone ? found : nullptr;
}

} // namespace

const DesktopEntry* entryOf(const WindowOrigin& origin, const std::vector<DesktopEntry>& entries)
{
    if (const auto* exact
        = findByNames(origin, entries, [](const DesktopEntry& entry, const std::string& name) {
              return entry.windowClass == name;
          }))
        return exact;
    const WindowOrigin folded{
        lowercased(origin.instance), lowercased(origin.className), origin.program};
    if (const auto* similar
        = findByNames(folded, entries, [](const DesktopEntry& entry, const std::string& name) {
              return lowercased(entry.windowClass) == name;
          }))
        return similar;
    if (const auto* named
        = findByNames(folded, entries, [](const DesktopEntry& entry, const std::string& name) {
              const auto identifier = lowercased(entry.identifier);
              return identifier == name || identifier.substr(identifier.rfind('.') + 1) == name;
          }))
        return named;
    if (const auto* starter = onlyStarterOf(origin.program, entries))
        return starter;
    return onlyStarterOf(origin.instance, entries);
}

std::string identifierOf(const DesktopEntry& entry)
{
    return std::string(knownIdentifier(entry.identifier).value_or(entry.identifier));
}

std::optional<std::string> identifierWithoutEntry(const WindowOrigin& origin)
{
    const auto& name = origin.className.empty() ? origin.instance : origin.className;
    if (const auto known = knownIdentifier(name))
        return std::string(*known);
    if (!name.empty())
        return std::string(windowClassPrefix) + name;
    if (!origin.program.empty())
        return std::string(programPrefix) + origin.program;
    return {};
}

} // namespace brindlex
