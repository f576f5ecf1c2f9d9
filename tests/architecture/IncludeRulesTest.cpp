#include "architecture/Sources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace brindlex {
namespace {

/// Which folders a folder may include, besides itself: the link dependencies of the rooms, as the
/// build has written them down.
std::map<std::string, std::set<std::string>> includeTable()
{
    std::map<std::string, std::set<std::string>> table;
    std::ifstream rooms(ROOMS);
    for (std::string line; std::getline(rooms, line);) {
        std::istringstream words(line);
        std::string room;
        words >> room;
        auto& known = table[room.substr(0, room.find(':'))];
        for (std::string name; words >> name;)
            known.insert(name);
    }
    return table;
}

/// How many rooms stand one upon the other up to this one.
std::size_t floorOf(
    const std::string& room, const std::map<std::string, std::set<std::string>>& table)
{
    std::size_t below = 0;
    for (const auto& known : table.at(room))
        below = std::max(below, floorOf(known, table));
    return below + 1;
}

TEST(IncludeRules, foldersIncludeOnlyWhatTheyMay)
{
    const auto table = includeTable();
    for (const auto& include : includesBelow(SOURCES)) {
        if (!include.isOwn)
            continue;
        const auto folder = include.file.parent_path().string();
        const auto target = std::filesystem::path(include.target).parent_path().string();
        const auto rule = table.find(folder);
        ASSERT_NE(rule, table.end()) << folder << " is no room";
        const bool isAllowed = target == folder || rule->second.contains(target);
        EXPECT_TRUE(isAllowed) << include.file << ":" << include.line << " " << include.target;
    }
}

TEST(IncludeRules, nothingIsAllowedThatNobodyNeeds)
{
    std::map<std::string, std::set<std::string>> used;
    for (const auto& include : includesBelow(SOURCES))
        if (include.isOwn)
            used[include.file.parent_path().string()].insert(
                std::filesystem::path(include.target).parent_path().string());
    for (const auto& [room, known] : includeTable())
        for (const auto& name : known)
            EXPECT_TRUE(used[room].contains(name)) << room << " includes nothing of " << name;
}

TEST(IncludeRules, roomsStandOnSevenFloorsAtMost)
{
    const auto table = includeTable();
    ASSERT_FALSE(table.empty());
    for (const auto& [room, known] : table)
        EXPECT_LE(floorOf(room, table), 7U) << room;
}

/// The rooms of each floor as the drawing shows them: all words of it that are rooms.
std::map<std::string, std::size_t> drawnFloors(
    const std::map<std::string, std::set<std::string>>& table)
{
    std::map<std::string, std::size_t> floors;
    std::ifstream page(ARCHITECTURE);
    std::size_t floor = 0;
    bool isDrawing = false;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("```"))
            isDrawing = !isDrawing && floors.empty();
        else if (isDrawing && line.find("│") == std::string::npos) {
            std::istringstream words(line);
            for (std::string word; words >> word;) {
                if (word.size() == 1 && std::isdigit(static_cast<unsigned char>(word[0])) != 0)
                    floor = static_cast<std::size_t>(word[0] - '0');
                else if (table.contains(word))
                    floors.emplace(word, floor);
            }
        }
    }
    return floors;
}

TEST(IncludeRules, theDrawingShowsEveryRoomOnItsFloor)
{
    const auto table = includeTable();
    const auto drawn = drawnFloors(table);
    for (const auto& [room, known] : table) {
        ASSERT_TRUE(drawn.contains(room)) << room << " is not drawn";
        EXPECT_EQ(drawn.at(room), floorOf(room, table)) << room;
    }
}

TEST(IncludeRules, filesFormFloorsWithoutACircle)
{
    std::map<std::string, std::set<std::string>> targets;
    for (const auto& include : includesBelow(SOURCES))
        if (include.isOwn)
            targets[include.file.string()].insert(include.target);

    std::set<std::string> finished;
    std::vector<std::string> road;
    const std::function<void(const std::string&)> visit = [&](const std::string& file) {
        const auto met = std::find(road.begin(), road.end(), file);
        if (met != road.end()) {
            std::string circle;
            for (auto step = met; step != road.end(); ++step)
                circle += *step + " -> ";
            ADD_FAILURE() << circle << file;
            return;
        }
        if (finished.contains(file))
            return;
        road.push_back(file);
        for (const auto& target : targets[file])
            visit(target);
        road.pop_back();
        finished.insert(file);
    };
    for (const auto& file : sourceFiles(SOURCES))
        visit(file.string());
}

TEST(IncludeRules, systemLibrariesStayInTheirProviders)
{
    const auto belongsToALibrary = [](const std::string& header) {
        return header.starts_with("Q") || header.starts_with("X11/") || header.starts_with("xcb/")
            || header.starts_with("xkbcommon/") || header.starts_with("systemd/");
    };
    const auto isProvider = [](const std::string& folder) {
        return folder.starts_with("platform/linux/") || folder == "app/linux";
    };
    const auto drawsWidgets = [](const std::string& folder) {
        return folder == "ui/controls" || folder.ends_with("/views");
    };
    for (const auto& include : includesBelow(SOURCES)) {
        if (!include.isOwn && belongsToALibrary(include.target)) {
            const auto folder = include.file.parent_path().string();
            const bool isWidget = include.target.starts_with("Q") && drawsWidgets(folder);
            EXPECT_TRUE(isProvider(folder) || isWidget)
                << include.file << ":" << include.line << " " << include.target;
        }
    }
}

} // namespace
} // namespace brindlex
