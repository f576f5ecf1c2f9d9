#include "support/switching/SwitchingRules.h"

#include "foundation/Uuid.h"

namespace brindlex {

using nlohmann::json;

json SwitchingRules::preferences() const
{
    json config{{"enabled", enabled}, {"rules", json::array()},
        {"domainRulesEnabled", !websites.empty()}, {"domainRules", json::array()},
        {"showHUD", showHUD}};
    for (const auto& rule : applications)
        config["rules"].push_back({{"id", Uuid::random().text()},
            {"app", {{"bundleID", rule.place}, {"displayName", rule.place}}},
            {"inputSourceID", rule.inputSourceID}});
    for (const auto& rule : websites)
        config["domainRules"].push_back({{"id", Uuid::random().text()},
            {"domainSuffix", rule.place}, {"inputSourceID", rule.inputSourceID}});
    const json learned{{"enabled", smart}, {"learningEnabled", learning}};
    return {{"inputMethodConfig", config.dump()}, {"smartInputMethodConfig", learned.dump()}};
}

} // namespace brindlex
