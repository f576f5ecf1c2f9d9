#pragma once

#include "mouse/ExpectedArrivals.h"
#include "mouse/MouseScenario.h"
#include "mouse/MouseScenarioStage.h"
#include "mouse/MouseSession.h"
#include "platform/simulated/RecordedInput.h"
#include "support/hardware/TappedDesktop.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Plays a scenario on the hardware of a real X server, through the real tap.
///
/// The time is that of the scenario: what is waited for is that all that was played has gone its
/// way. A window gets what the applications get; whatever it gets that it should not, or misses, is
/// an effect `arrived ...` and so differs from what is written.
class HardwareMouseExecutor : public MouseScenarioExecutor {
public:
    void begin(const MouseScenario& scenario) override;
    std::vector<std::string> perform(const MouseScenario::Step& step) override;

    /// Releases the modifiers and returns what is down all the same.
    std::vector<std::string> heldAtTheEnd();

private:
    /// On a desktop whose input it taps.
    struct Session {
        explicit Session(const MouseConfig& config);

        TappedDesktop desktop;
        SimulatedClock clock;
        X11EventPosting posting{desktop.stream, desktop.mainThread, clock};
        RecordedInput input{desktop.tapping, posting};
        MouseSession subsystem;
        MouseScenarioStage stage{subsystem};
    };

    /// What the tap has decided, or nothing when the step is about something else.
    std::optional<std::string> carryOut(const MouseScenarioStep::Any& step);
    void play(const MouseScenarioStep::Input& input);
    void moveTo(int mouse, Point location);
    void holdModifiers(std::uint64_t flags);
    std::string verdictOf(const MouseScenarioStep::Input& input);
    void expect(const MouseScenarioStep::Input& input, const std::string& verdict);
    std::vector<std::string> takePosted(bool isWheel);
    std::vector<std::string> takeSurprises();

    std::unique_ptr<Session> session_;
    ExpectedArrivals expected_;
    std::uint64_t heldFlags_ = 0;
};

} // namespace brindlex
