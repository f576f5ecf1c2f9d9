#pragma once

#include "desktop/ProgramDesk.h"
#include "support/switching/SwitchScenario.h"
#include "support/windows/PlainWindow.h"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Plays scenarios against the running program, on a desktop with one window for each application.
///
/// A step is carried out at its time, and its effects are read once the program has come to rest.
/// The sources of the scenario are layouts of the keyboard, one group each.
class DesktopSwitchExecutor : public SwitchScenarioExecutor {
public:
    void begin(const SwitchScenario& scenario) override;
    std::vector<std::string> perform(const SwitchScenario::Step& step) override;

    /// What the program printed and logged.
    std::string report() const override;

private:
    struct Learned {
        std::string application{};
        std::string inputSourceID{};
        std::string id{};

        bool operator==(const Learned&) const = default;
    };

    void waitFor(Seconds time);
    void carryOut(const SwitchScenarioStep::Any& step);
    void selectWithoutHand(const std::string& inputSourceID);
    void start();
    void activate(const std::string& application);
    void set(ScenarioWords setting);
    void writePreferences() const;
    bool comesToRest() const;
    int groupOf(const std::string& inputSourceID) const;
    std::vector<Learned> learned() const;
    std::string overlay() const;

    SwitchVerbs::Preparation preparation_;
    std::unique_ptr<ProgramDesk> desk_;
    std::map<std::string, std::unique_ptr<PlainWindow>> windows_;
    std::optional<RunningProgram> program_;
    std::chrono::steady_clock::time_point start_{};
    int group_ = 0;
    std::vector<Learned> learned_;
};

} // namespace brindlex
