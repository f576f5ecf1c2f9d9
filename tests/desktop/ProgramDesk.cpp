#include "desktop/ProgramDesk.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto longEnoughForLayouts = 400ms;

} // namespace

const VirtualDesktop::Options ProgramDesk::usual{.keyboardLayouts = "us,de,ru"};

std::string identifierOf(const std::string& className) { return "com.example." + className; }

ProgramDesk::ProgramDesk(const VirtualDesktop::Options& options)
    : desktop(options), windows(server), input(server), files(desktop)
{
    for (const auto className : {"Alpha", "Beta", "Gamma"})
        installApplication(desktop, identifierOf(className), className);
}

void ProgramDesk::applyRules(const std::vector<SwitchingRules::Rule>& applications) const
{
    SwitchingRules rules{.applications = applications};
    for (auto& rule : rules.applications)
        rule.place = identifierOf(rule.place);
    files.writePreferences(rules.preferences());
}

bool ProgramDesk::usesGroup(int group) const
{
    return eventually([&] { return keyboardGroup(server) == group; });
}

bool ProgramDesk::keepsGroup(int group) const
{
    return throughout(longEnoughForLayouts, [&] { return keyboardGroup(server) == group; });
}

} // namespace brindlex
