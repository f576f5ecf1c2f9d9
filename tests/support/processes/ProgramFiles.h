#pragma once

#include "support/screen/VirtualDesktop.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace brindlex {

/// Where the program keeps what is the user's, on a virtual desktop.
class ProgramFiles {
public:
    explicit ProgramFiles(const VirtualDesktop& desktop) : desktop_(desktop) { }

    std::filesystem::path preferences() const;
    std::filesystem::path container() const;
    std::filesystem::path log() const;

    /// The preferences as they stand; null when they are not there or not readable.
    nlohmann::json readPreferences() const;
    void writePreferences(const nlohmann::json& preferences) const;

    /// The record that a preference holds as text; null when there is none.
    nlohmann::json readRecord(const std::string& key) const;

    /// The lines of the log, oldest first.
    std::vector<std::string> logLines() const;
    /// The messages of the log, without what stands before them.
    std::vector<std::string> logMessages() const;

private:
    const VirtualDesktop& desktop_;
};

} // namespace brindlex
