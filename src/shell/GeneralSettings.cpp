#include "shell/GeneralSettings.h"

#include "shell/ShellPreferenceKeys.h"
#include "shell/WindowScenes.h"

#include <string>

namespace brindlex {

GeneralSettings::GeneralSettings(UserDefaults& defaults, LaunchAtLoginManager& launchAtLogin,
    ShellWindows& windows, LanguageManager& language)
    : defaults_(defaults), launchAtLogin_(launchAtLogin), windows_(windows), language_(language)
{
}

bool GeneralSettings::launchAtLogin() const
{
    return readPreference(defaults_, ShellPreferenceKeys{}.launchAtLogin);
}

void GeneralSettings::setLaunchAtLogin(bool isOn)
{
    writePreference(defaults_, ShellPreferenceKeys{}.launchAtLogin, isOn);
    launchAtLogin_.setEnabled(isOn);
}

bool GeneralSettings::showsDockIcon() const
{
    return readPreference(defaults_, ShellPreferenceKeys{}.showsDockIcon);
}

LanguagePreference GeneralSettings::language() const
{
    return readPreference(defaults_, ShellPreferenceKeys{}.languagePreference);
}

void GeneralSettings::setLanguage(LanguagePreference language)
{
    if (language != this->language())
        language_.select(language);
}

void GeneralSettings::openPermissionsGuide()
{
    windows_.auxiliaryWindows().present(std::string(windowScene::permissions.id));
}

} // namespace brindlex
