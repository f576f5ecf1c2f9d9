#include "support/processes/ProgramFiles.h"

#include <sstream>

namespace brindlex {

using nlohmann::json;

std::filesystem::path ProgramFiles::preferences() const
{
    return desktop_.configFolder() / "com.brindlex.Brindlex.json";
}

std::filesystem::path ProgramFiles::container() const
{
    return desktop_.dataFolder() / "group.com.brindlex.Brindlex";
}

std::filesystem::path ProgramFiles::log() const
{
    return container() / "Logs" / "com.brindlex.Brindlex.app.log";
}

json ProgramFiles::readPreferences() const
{
    const auto value = json::parse(contentOf(preferences()), nullptr, false);
    return value.is_discarded() ? json{} : value;
}

void ProgramFiles::writePreferences(const json& value) const
{
    // As a whole, like every other writer of this file.
    auto whole = preferences();
    whole += ".new";
    write(whole, value.dump());
    std::error_code ignored;
    std::filesystem::rename(whole, preferences(), ignored);
}

json ProgramFiles::readRecord(const std::string& key) const
{
    const auto all = readPreferences();
    if (!all.is_object() || !all.contains(key) || !all[key].is_string())
        return {};
    const auto record = json::parse(all[key].get<std::string>(), nullptr, false);
    return record.is_discarded() ? json{} : record;
}

std::vector<std::string> ProgramFiles::logLines() const
{
    std::vector<std::string> lines;
    std::istringstream stream(contentOf(log()));
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> ProgramFiles::logMessages() const
{
    const std::string separator = " — ";
    auto lines = logLines();
    for (auto& line : lines)
        if (const auto start = line.find(separator); start != std::string::npos)
            line.erase(0, start + separator.size());
    return lines;
}

} // namespace brindlex
