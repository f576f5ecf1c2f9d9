#include "desktop/DesktopSwitchExecutor.h"

#include "foundation/Json.h"
#include "foundation/JsonCoding.h"
#include "support/processes/ProcessTable.h"
#include "support/switching/SwitchSettings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Step = SwitchScenarioStep;

constexpr auto timeAtRest = 60ms;
constexpr auto reactionTime = 300ms;

/// The layout in an identifier such as `xkb:de::deu`.
std::string layoutOf(const std::string& inputSourceID)
{
    const auto start = inputSourceID.find(':') + 1;
    return inputSourceID.substr(start, inputSourceID.find(':', start) - start);
}

VirtualDesktop::Options desktopFor(const std::vector<SwitchVerbs::Source>& sources)
{
    std::string layouts;
    for (const auto& source : sources)
        layouts += (layouts.empty() ? "" : ",") + layoutOf(source.id);
    return {.keyboardLayouts = layouts};
}

std::set<std::string> applicationsIn(const SwitchScenario& scenario)
{
    std::set<std::string> applications;
    if (scenario.preparation.frontmostBundleID)
        applications.insert(*scenario.preparation.frontmostBundleID);
    for (const auto& step : scenario.steps)
        if (const auto activation = std::get_if<Step::Activate>(&step.what))
            applications.insert(activation->bundleID.value_or(""));
    return applications;
}

} // namespace

void DesktopSwitchExecutor::begin(const SwitchScenario& scenario)
{
    preparation_ = scenario.preparation;
    desk_ = std::make_unique<ProgramDesk>(desktopFor(preparation_.sources));
    for (const auto& application : applicationsIn(scenario)) {
        installApplication(desk_->desktop, application, application);
        windows_[application] = std::make_unique<PlainWindow>(
            desk_->server, PlainWindow::Claims{.wmClass = wmClass(application)});
    }
    if (preparation_.frontmostBundleID)
        activate(*preparation_.frontmostBundleID);
    writePreferences();
    learned_ = learned();
}

std::vector<std::string> DesktopSwitchExecutor::perform(const SwitchScenario::Step& step)
{
    waitFor(step.time);
    const auto overlayBefore = overlay();
    carryOut(step.what);
    if (!comesToRest())
        return {"the program does not come to rest"};

    std::vector<std::string> effects;
    if (const auto group = keyboardGroup(desk_->server); group != group_) {
        group_ = group;
        effects.push_back("select " + preparation_.sources.at(static_cast<std::size_t>(group)).id);
    }
    if (const auto label = overlay(); !label.empty() && label != overlayBefore)
        effects.push_back("hud " + label);
    const auto samples = learned();
    for (const auto& sample : samples)
        if (std::find(learned_.begin(), learned_.end(), sample) == learned_.end())
            effects.push_back("learn " + sample.inputSourceID + " for " + sample.application);
    learned_ = samples;
    return effects;
}

std::string DesktopSwitchExecutor::report() const { return program_ ? program_->report() : ""; }

void DesktopSwitchExecutor::waitFor(Seconds time)
{
    const auto moment = start_ + std::chrono::duration<double>(time);
    eventually([&] { return std::chrono::steady_clock::now() >= moment; }, 60s);
}

void DesktopSwitchExecutor::carryOut(const SwitchScenarioStep::Any& step)
{
    const auto refuse
        = [] { ADD_FAILURE() << "A step that only a computer in memory carries out"; };
    match(
        step, [](const Step::Wait&) {}, [&](const Step::Start&) { start(); },
        [&](const Step::Stop&) { program_->quit(); },
        [&](const Step::Activate& activation) { activate(activation.bundleID.value_or("")); },
        [&](const Step::UserSelects& selection) {
            group_ = groupOf(selection.inputSourceID.value_or(""));
            chooseKeyboardGroup(desk_->server, group_);
        },
        [&](const Step::PlaceBrings& place) { selectWithoutHand(place.inputSourceID); },
        [&](const Step::DesktopUndoes& undoing) { selectWithoutHand(undoing.inputSourceID); },
        [&](const Step::Set& change) { set(change.setting); },
        [&](const Step::ShowPage&) { refuse(); }, [&](const Step::Tick&) { refuse(); },
        [&](const Step::SourceChanged&) { refuse(); }, [&](const Step::Refuse&) { refuse(); },
        [&](const Step::Accept&) { refuse(); });
}

void DesktopSwitchExecutor::selectWithoutHand(const std::string& inputSourceID)
{
    group_ = groupOf(inputSourceID);
    selectKeyboardGroup(desk_->server, group_);
    // The program sleeps until the desktop has come to rest, too.
    eventually([&] { return keyboardGroup(desk_->server) != group_; }, reactionTime);
}

void DesktopSwitchExecutor::start()
{
    program_.emplace(desk_->desktop);
    program_->launches();
    start_ = std::chrono::steady_clock::now();
}

void DesktopSwitchExecutor::activate(const std::string& application)
{
    desk_->windows.activate(windows_.at(application)->window());
}

void DesktopSwitchExecutor::set(ScenarioWords setting)
{
    const auto record = [&](const std::string& key) {
        return parseJson(desk_->files.readRecord(key).dump()).value();
    };
    preparation_.config = fromJson<InputMethodConfig>(record("inputMethodConfig")).value();
    preparation_.smartConfig
        = fromJson<SmartInputMethodConfig>(record("smartInputMethodConfig")).value();
    changeSetting(setting, preparation_.config, preparation_.smartConfig);
    writePreferences();
}

void DesktopSwitchExecutor::writePreferences() const
{
    auto preferences = desk_->files.readPreferences();
    preferences["inputMethodConfig"] = jsonText(toJson(preparation_.config));
    preferences["smartInputMethodConfig"] = jsonText(toJson(preparation_.smartConfig));
    desk_->files.writePreferences(preferences);
}

bool DesktopSwitchExecutor::comesToRest() const
{
    return eventually(
        [&] { return staysTheSame(timeAtRest, [&] { return timesAsleep(program_->process()); }); });
}

int DesktopSwitchExecutor::groupOf(const std::string& inputSourceID) const
{
    const auto& sources = preparation_.sources;
    const auto found = std::find_if(sources.begin(), sources.end(),
        [&](const auto& source) { return source.id == inputSourceID; });
    return static_cast<int>(found - sources.begin());
}

std::vector<DesktopSwitchExecutor::Learned> DesktopSwitchExecutor::learned() const
{
    std::vector<Learned> samples;
    const auto record = desk_->files.readRecord("smartInputMethodConfig");
    for (const auto& statistics : record["appStats"])
        for (const auto& sample : statistics["samples"])
            samples.push_back(
                {statistics["app"]["bundleID"], sample["inputSourceID"], sample["id"]});
    return samples;
}

std::string DesktopSwitchExecutor::overlay() const
{
    if (!program_)
        return {};
    const auto overlays = desk_->windows.unmanagedOf(program_->process());
    return overlays.empty() ? "" : desk_->windows.titleOf(overlays.front());
}

} // namespace brindlex
