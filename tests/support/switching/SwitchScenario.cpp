#include "support/switching/SwitchScenario.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchSettings.h"

namespace brindlex {
namespace {

/// An identifier, or "unknown" for none.
std::optional<std::string> known(const std::string& word)
{
    return word == "unknown" ? std::nullopt : std::optional(word);
}

void recordSamples(SmartInputMethodConfig& config, ScenarioWords& words)
{
    const auto application = words.word();
    const auto source = words.word();
    for (auto left = words.wholeNumber(); left > 0; --left)
        config.recordSample(source, {application, application}, Date{});
}

SwitchScenarioStep::Set setting(ScenarioWords& words)
{
    const SwitchScenarioStep::Set result{words};
    InputMethodConfig config;
    SmartInputMethodConfig smartConfig;
    changeSetting(words, config, smartConfig);
    return result;
}

} // namespace

void SwitchVerbs::prepare(Preparation& preparation, ScenarioWords& words)
{
    if (words.take("source")) {
        auto id = words.word();
        preparation.sources.push_back({std::move(id), words.rest()});
    } else if (words.take("rule")) {
        const auto application = words.word();
        preparation.config.rules.push_back(appRule(application, words.word()));
    } else if (words.take("website")) {
        const auto domain = words.word();
        preparation.config.domainRules.push_back(websiteRule(domain, words.word()));
    } else if (words.take("browser")) {
        preparation.browsers.insert(words.word());
    } else if (words.take("front")) {
        preparation.frontmostBundleID = words.word();
    } else if (words.take("learned")) {
        recordSamples(preparation.smartConfig, words);
    } else if (words.take("set")) {
        changeSetting(words, preparation.config, preparation.smartConfig);
    } else if (words.take("echo by hand")) {
        preparation.echoDelay = {};
    } else if (words.take("echo")) {
        preparation.echoDelay = words.milliseconds() / 1000.0;
    } else {
        words.refuseNext();
    }
}

std::optional<std::string> SwitchVerbs::complete(Preparation& preparation)
{
    if (preparation.sources.empty())
        return "has no source";
    preparation.smartConfig.normalizeStats();
    return {};
}

SwitchVerbs::Step SwitchVerbs::step(ScenarioWords& words)
{
    if (words.take("wait"))
        return SwitchScenarioStep::Wait{};
    if (words.take("start"))
        return SwitchScenarioStep::Start{};
    if (words.take("stop"))
        return SwitchScenarioStep::Stop{};
    if (words.take("activate"))
        return SwitchScenarioStep::Activate{known(words.word())};
    if (words.take("user selects"))
        return SwitchScenarioStep::UserSelects{known(words.word())};
    if (words.take("place brings"))
        return SwitchScenarioStep::PlaceBrings{words.word()};
    if (words.take("desktop undoes with"))
        return SwitchScenarioStep::DesktopUndoes{words.word()};
    if (words.take("page"))
        return SwitchScenarioStep::ShowPage{known(words.word())};
    if (words.take("tick"))
        return SwitchScenarioStep::Tick{};
    if (words.take("source changed"))
        return SwitchScenarioStep::SourceChanged{};
    if (words.take("set"))
        return setting(words);
    if (words.take("refuse"))
        return SwitchScenarioStep::Refuse{words.word()};
    if (words.take("accept"))
        return SwitchScenarioStep::Accept{words.word()};
    words.refuseNext();
    return {};
}

} // namespace brindlex
