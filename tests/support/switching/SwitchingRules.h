#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace brindlex {

/// The switching rules of a user, in the form in which the preferences keep them.
struct SwitchingRules {
    struct Rule {
        /// The application's identifier or the website's domain.
        std::string place{};
        std::string inputSourceID{};
    };

    bool enabled = true;
    std::vector<Rule> applications{};
    std::vector<Rule> websites{};
    bool showHUD = true;
    /// Whether learned rules act.
    bool smart = false;
    bool learning = true;

    /// The whole preferences of a user who has set nothing else.
    nlohmann::json preferences() const;
};

} // namespace brindlex
