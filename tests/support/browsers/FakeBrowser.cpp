#include "support/browsers/FakeBrowser.h"

#include "foundation/FatalError.h"
#include "foundation/Text.h"
#include "support/basics/Eventually.h"

#include <filesystem>
#include <nlohmann/json.hpp>

namespace brindlex {

FakeBrowser::FakeBrowser()
    : program_({.command = {FAKE_BROWSER, folder_.path()}, .output = folder_.path() / "output"})
{
    if (!eventually([&] { return std::filesystem::exists(folder_.path() / "ready"); }))
        fatalError("The fake browser did not start.\n" + program_.output());
}

void FakeBrowser::offer(const std::vector<Window>& windows, Behaviour behaviour) const
{
    auto list = nlohmann::json::array();
    for (const auto& window : windows)
        list.push_back({{"name", window.name}, {"url", window.url}, {"isActive", window.isActive},
            {"attribute", window.attribute}, {"embeds", window.embeds}});
    const nlohmann::json offer{{"windows", list}, {"behaviour", static_cast<int>(behaviour)}};
    write(folder_.path() / "next", offer.dump());
    std::filesystem::rename(folder_.path() / "next", folder_.path() / "offer");
}

std::vector<std::string> FakeBrowser::questions() const
{
    auto lines = split(contentOf(folder_.path() / "questions"), '\n');
    lines.pop_back();
    return lines;
}

} // namespace brindlex
