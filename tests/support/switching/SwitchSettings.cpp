#include "support/switching/SwitchSettings.h"

#include "foundation/JsonCoding.h"

#include <optional>
#include <type_traits>

namespace brindlex {
namespace {

/// The case whose stored value is the next word.
template <typename Enumeration>
void takeCase(ScenarioWords& words, Enumeration& setting)
{
    std::optional<Enumeration> value;
    if constexpr (std::is_integral_v<decltype(storedValue(Enumeration{}))>)
        value = caseWithStoredValue<Enumeration>(words.wholeNumber());
    else
        value = caseWithStoredValue<Enumeration>(words.word());
    if (!value)
        words.refuse("the setting has no such value");
    setting = value.value_or(setting);
}

} // namespace

void changeSetting(
    ScenarioWords& words, InputMethodConfig& config, SmartInputMethodConfig& smartConfig)
{
    if (words.take("switching"))
        config.enabled = words.isOn();
    else if (words.take("websites"))
        config.domainRulesEnabled = words.isOn();
    else if (words.take("hud"))
        config.showHUD = words.isOn();
    else if (words.take("learning"))
        smartConfig.learningEnabled = words.isOn();
    else if (words.take("learned rules"))
        smartConfig.enabled = words.isOn();
    else if (words.take("priority"))
        takeCase(words, smartConfig.priority);
    else if (words.take("threshold"))
        takeCase(words, smartConfig.thresholdRatio);
    else if (words.take("window"))
        takeCase(words, smartConfig.windowSize);
    else if (words.take("limit"))
        takeCase(words, smartConfig.appLimit);
    else
        words.refuseNext();
}

} // namespace brindlex
