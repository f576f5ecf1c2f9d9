#pragma once

#include "mouse/ExpectedArrivals.h"
#include "mouse/MouseSession.h"
#include "mouse/Scenario.h"
#include "mouse/ScenarioPreparation.h"
#include "mouse/ScenarioStage.h"
#include "mouse/ScenarioWords.h"
#include "platform/simulated/RecordedInput.h"
#include "support/hardware/TappedDesktop.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// Plays a scenario on the hardware of a real X server, through the real tap.
///
/// The time is that of the scenario: what is waited for is that all that was played has gone its
/// way. A window gets what the applications get; whatever it gets that it should not, or misses, is
/// answered as `arrived ...` and so differs from what is written.
class PlayedScenarioExecutor : public ScenarioExecutor {
public:
    void setUp(const Words& words) override { preparation_.add(words); }
    std::vector<std::string> run(Seconds at, const Words& words) override;

    /// Lets go of the modifiers; what then is down all the same.
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
        ScenarioStage stage{subsystem};
    };

    void start();
    void play(int mouse, const scenarioWords::Deed& deed);
    void moveTo(int mouse, Point location);
    void holdModifiers(std::uint64_t flags);
    std::string verdictOf(const scenarioWords::Deed& deed);
    void expect(int mouse, const scenarioWords::Deed& deed, const std::string& verdict);
    std::vector<std::string> takePosted(bool isWheel);
    std::vector<std::string> takeSurprises();

    ScenarioPreparation preparation_;
    std::unique_ptr<Session> session_;
    ExpectedArrivals expected_;
    std::uint64_t heldFlags_ = 0;
};

} // namespace brindlex
