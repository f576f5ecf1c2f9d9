#include "support/browsers/FakeElements.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"

#include <filesystem>
#include <nlohmann/json.hpp>

namespace brindlex {

FakeElements::FakeElements()
    : program_({.command = {FAKE_ELEMENTS, folder_.path()}, .output = folder_.path() / "output"})
{
    if (!eventually([&] { return std::filesystem::exists(folder_.path() / "ready"); }))
        fatalError("The program with elements did not start.\n" + program_.output());
}

void FakeElements::offer(const std::vector<Element>& elements, Behaviour behaviour) const
{
    auto list = nlohmann::json::array();
    for (const auto& element : elements) {
        const auto& area = element.area;
        list.push_back({{"role", element.role}, {"roleName", element.roleName},
            {"name", element.name}, {"parent", element.parent},
            {"area", {area.origin.x, area.origin.y, area.size.width, area.size.height}}});
    }
    const nlohmann::json offer{{"elements", list}, {"behaviour", static_cast<int>(behaviour)}};
    write(folder_.path() / "next", offer.dump());
    std::filesystem::rename(folder_.path() / "next", folder_.path() / "offer");
}

} // namespace brindlex
