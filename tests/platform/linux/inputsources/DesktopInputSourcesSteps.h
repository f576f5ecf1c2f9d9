#pragma once

#include "platform/linux/inputsources/DesktopInputSources.h"
#include "support/loops/LoopUntil.h"
#include "support/processes/ProcessTable.h"
#include "support/screen/VirtualDesktop.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// What a user can choose from.
inline std::vector<std::string> idsOf(DesktopInputSources& sources)
{
    std::vector<std::string> ids;
    for (const auto& source : sources.list({}).value_or(std::vector<InputSourceProperties>()))
        ids.push_back(source.id.value_or(""));
    return ids;
}

/// Empty where nothing is said to be selected.
inline std::string currentID(DesktopInputSources& sources)
{
    const auto source = sources.current();
    return source ? source->id.value_or("") : "";
}

/// The status of `select`; -1 where there is no such source.
inline int selectID(DesktopInputSources& sources, const std::string& id)
{
    const auto found = sources.list({.id = id});
    return found && !found->empty() ? sources.select(found->front()) : -1;
}

/// Runs the loop until the sources come from there.
inline bool becomes(DesktopInputSources& sources, const std::string& backend)
{
    return loopUntil([&] { return sources.backendName() == backend; });
}

/// The process of the desktop that runs this program; -1 where none does.
inline pid_t processOf(const VirtualDesktop& desktop, const std::string& program)
{
    for (const auto process : processesWithVariable("HOME", desktop.home())) {
        std::error_code gone;
        const auto file
            = std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", gone);
        if (file.filename() == program)
            return process;
    }
    return -1;
}

/// Whether the work ends long before a call to a daemon that hangs is given up.
inline bool isBounded(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start < std::chrono::seconds(2);
}

} // namespace brindlex
