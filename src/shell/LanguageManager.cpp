#include "shell/LanguageManager.h"

#include "log/Log.h"
#include "shell/ShellPreferenceKeys.h"

namespace brindlex {

LanguageManager::LanguageManager(
    UserDefaults& defaults, ProgramRelaunching& relaunching, ProgramInstances& instances)
    : defaults_(defaults), relaunching_(relaunching), instances_(instances)
{
}

void LanguageManager::applyStoredPreference()
{
    const auto key = ShellPreferenceKeys().languagePreference;
    if (!defaults_.value(key.key))
        return;
    const auto language = readPreference(defaults_, key);
    publish(language);
    if (const auto code = languageCode(language))
        defaults_.set(appleLanguagesKey, std::vector<std::string>{*code});
    else
        defaults_.set(appleLanguagesKey, {});
}

void LanguageManager::select(LanguagePreference language)
{
    const ShellPreferenceKeys keys;
    writePreference(defaults_, keys.languagePreference, language);
    publish(language);
    writePreference(defaults_, keys.shouldRestoreFocusAfterLanguageRelaunch, true);
    defaults_.synchronize();
    relaunch();
}

void LanguageManager::publish(LanguagePreference language) const
{
    if (onLanguage)
        onLanguage(languageCode(language));
}

void LanguageManager::relaunch()
{
    relaunching_.relaunch([this](const Result<Done, std::string>& result) {
        if (result)
            instances_.terminate();
        else
            Log::error("The program cannot be started anew for its language: " + result.error(),
                logCategory::lifecycle);
    });
}

} // namespace brindlex
