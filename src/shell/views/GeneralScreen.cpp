#include "shell/views/GeneralScreen.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/ChooserValues.h"

#include <QEvent>

namespace brindlex {
namespace {

/// A language in its own words, which its reader knows whatever the program speaks now.
QString nameOf(LanguagePreference language, const ViewContext& context)
{
    switch (language) {
    case LanguagePreference::system:
        return context.text<"general.language.systemDefault">();
    case LanguagePreference::en:
        return QStringLiteral("English");
    case LanguagePreference::zhHans:
        return QStringLiteral("简体中文");
    case LanguagePreference::zhHant:
        return QStringLiteral("繁體中文");
    case LanguagePreference::ja:
        return QStringLiteral("日本語");
    case LanguagePreference::fr:
        return QStringLiteral("Français");
    case LanguagePreference::es:
        return QStringLiteral("Español");
    case LanguagePreference::de:
        return QStringLiteral("Deutsch");
    case LanguagePreference::ko:
        return QStringLiteral("한국어");
    }
    return {};
}

} // namespace

GeneralScreen::GeneralScreen(
    const ViewContext& context, GeneralSettings& settings, UserDefaults& defaults)
    : Page(context), context_(context), settings_(settings),
      launchAtLogin_(new ToggleSwitch(context.theme, context.text<"general.launchAtLogin">(),
          [this](bool isOn) {
              settings_.setLaunchAtLogin(isOn);
              show();
          })),
      showsDockIcon_(new ToggleSwitch(context.theme, context.text<"general.showsDockIcon">(),
          [this](bool isOn) { settings_.setShowsDockIcon(isOn); })),
      language_(new Chooser(context.theme, context.text<"general.language">(),
          [this](const std::string& option) {
              settings_.setLanguage(valueWithOption<LanguagePreference>(option));
          })),
      changes_(defaults.observeChanges([this] { show(); }))
{
    auto& card = section();
    card.setting(context.text<"general.launchAtLogin">(),
        context.text<"general.launchAtLoginDescription">(), launchAtLogin_);
    card.setting(context.text<"general.showsDockIcon">(),
        context.text<"general.showsDockIconDescription">(), showsDockIcon_);
    card.setting(context.text<"general.language">(), {}, language_);
    if (settings.hasPermissionsGuide())
        addPermissionsRow(card);
    finish();
    show();
}

void GeneralScreen::addPermissionsRow(Card& card)
{
    card.setting(context_.text<"general.permissionsGuide">(),
        context_.text<"general.permissionsGuideDescription">(),
        makeButton(context_.theme, ButtonRole::plain,
            context_.text<"general.openPermissionsGuide">(),
            [this] { settings_.openPermissionsGuide(); }));
}

/// The desktop may have changed what starts at login while the user was elsewhere.
bool GeneralScreen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        show();
    return Page::event(event);
}

void GeneralScreen::show()
{
    launchAtLogin_->show(settings_.launchAtLogin());
    showsDockIcon_->show(settings_.showsDockIcon());
    const auto languages = optionsOfAllValues<LanguagePreference>(
        [this](LanguagePreference language) { return nameOf(language, context_); });
    language_->show(languages, optionOfValue(settings_.language()));
}

} // namespace brindlex
