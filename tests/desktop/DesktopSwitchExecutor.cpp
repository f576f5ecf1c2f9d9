#include "desktop/DesktopSwitchExecutor.h"

#include "foundation/Json.h"
#include "foundation/JsonCoding.h"
#include "support/processes/ProcessTable.h"

#include <algorithm>
#include <set>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Event = SwitchScenarioEvent;

constexpr auto timeAtRest = 60ms;

/// The layout in an identifier such as `xkb:de::deu`.
std::string layoutOf(const std::string& inputSourceID)
{
    const auto start = inputSourceID.find(':') + 1;
    return inputSourceID.substr(start, inputSourceID.find(':', start) - start);
}

VirtualDesktop::Options desktopFor(const SwitchScenario& scenario)
{
    std::string layouts;
    for (const auto& source : scenario.sources)
        layouts += (layouts.empty() ? "" : ",") + layoutOf(source.id);
    return {.keyboardLayouts = layouts};
}

std::set<std::string> applicationsIn(const SwitchScenario& scenario)
{
    std::set<std::string> applications;
    if (scenario.frontmostBundleID)
        applications.insert(*scenario.frontmostBundleID);
    for (const auto& line : scenario.lines)
        if (const auto step = line.step ? std::get_if<Event::Activate>(&line.step->event) : nullptr)
            applications.insert(step->bundleID.value_or(""));
    return applications;
}

} // namespace

void DesktopSwitchExecutor::begin(const SwitchScenario& scenario)
{
    scenario_ = scenario;
    desk_ = std::make_unique<ProgramDesk>(desktopFor(scenario));
    for (const auto& application : applicationsIn(scenario)) {
        installApplication(desk_->desktop, application, application);
        windows_[application] = std::make_unique<PlainWindow>(
            desk_->server, PlainWindow::Claims{.wmClass = wmClass(application)});
    }
    if (scenario.frontmostBundleID)
        activate(*scenario.frontmostBundleID);
    writePreferences();
    learned_ = learned();
}

std::vector<SwitchScenarioOutcome> DesktopSwitchExecutor::perform(const SwitchScenario::Step& step)
{
    waitFor(step.time);
    const auto overlayBefore = overlay();
    carryOut(step.event);
    std::vector<SwitchScenarioOutcome> outcomes;
    if (!comesToRest())
        return {{"the program does not come to rest"}};

    if (const auto group = keyboardGroup(desk_->server); group != group_) {
        group_ = group;
        outcomes.push_back({"select " + scenario_.sources.at(static_cast<std::size_t>(group)).id});
    }
    if (const auto label = overlay(); !label.empty() && label != overlayBefore)
        outcomes.push_back({"hud " + label});
    const auto samples = learned();
    for (const auto& sample : samples)
        if (std::find(learned_.begin(), learned_.end(), sample) == learned_.end())
            outcomes.push_back({"learn " + sample.inputSourceID + " for " + sample.application});
    learned_ = samples;
    return outcomes;
}

std::string DesktopSwitchExecutor::report() const { return program_ ? program_->report() : ""; }

void DesktopSwitchExecutor::waitFor(Seconds time)
{
    const auto moment = start_ + std::chrono::duration<double>(time);
    eventually([&] { return std::chrono::steady_clock::now() >= moment; }, 60s);
}

void DesktopSwitchExecutor::carryOut(const SwitchScenarioEvent::Any& event)
{
    match(
        event,
        [&](const Event::Start&) {
            program_.emplace(desk_->desktop);
            program_->launches();
            start_ = std::chrono::steady_clock::now();
        },
        [&](const Event::Stop&) { program_->quit(); },
        [&](const Event::Activate& activation) { activate(activation.bundleID.value_or("")); },
        [&](const Event::UserSelects& choice) {
            group_ = groupOf(choice.inputSourceID.value_or(""));
            selectKeyboardGroup(desk_->server, group_);
        },
        [&](const Event::Set& setting) { change(setting); }, [&](const Event::Wait&) {},
        // What only a computer in memory can be told to do.
        [&](const Event::ShowPage&) { std::abort(); }, [&](const Event::Tick&) { std::abort(); },
        [&](const Event::SourceChanged&) { std::abort(); },
        [&](const Event::Refuse&) { std::abort(); }, [&](const Event::Accept&) { std::abort(); });
}

void DesktopSwitchExecutor::activate(const std::string& application)
{
    desk_->windows.activate(windows_.at(application)->window());
}

void DesktopSwitchExecutor::change(const SwitchScenarioEvent::Set& setting)
{
    const auto record = [&](const std::string& key) {
        return parseJson(desk_->files.readRecord(key).dump()).value();
    };
    scenario_.config = fromJson<InputMethodConfig>(record("inputMethodConfig")).value();
    scenario_.smartConfig
        = fromJson<SmartInputMethodConfig>(record("smartInputMethodConfig")).value();
    applySetting(setting.name, setting.value, scenario_.config, scenario_.smartConfig);
    writePreferences();
}

void DesktopSwitchExecutor::writePreferences() const
{
    auto preferences = desk_->files.readPreferences();
    preferences["inputMethodConfig"] = jsonText(toJson(scenario_.config));
    preferences["smartInputMethodConfig"] = jsonText(toJson(scenario_.smartConfig));
    desk_->files.writePreferences(preferences);
}

bool DesktopSwitchExecutor::comesToRest() const
{
    return eventually(
        [&] { return staysTheSame(timeAtRest, [&] { return timesAsleep(program_->process()); }); });
}

int DesktopSwitchExecutor::groupOf(const std::string& inputSourceID) const
{
    const auto& sources = scenario_.sources;
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
