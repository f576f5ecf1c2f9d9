#include "inputmethod/views/InputMethodSettingsScreen.h"

#include <QEvent>

namespace brindlex {

InputMethodSettingsScreen::InputMethodSettingsScreen(const ViewContext& context,
    InputMethodSettings& settings, InputMethodConfigStore& store,
    SmartInputMethodConfigStore& smartStore, const SwitchReasons& reasons,
    const ApplicationChoosing& chooseApplication)
    : Page(context), settings_(settings), options_(*this, context, settings),
      rules_(*this, context, settings, chooseApplication), domainRules_(*this, context, settings),
      smartRules_(*this, context, settings)
{
    finish();
    changes_.push_back(store.config().stream().withoutFirst().subscribe([this](const auto&) {
        options_.show();
        rules_.show();
        domainRules_.show();
    }));
    changes_.push_back(smartStore.config().stream().withoutFirst().subscribe(
        [this](const auto&) { smartRules_.show(); }));
    changes_.push_back(
        reasons.byApplication().stream().withoutFirst().subscribe([this](const auto&) {
            rules_.show();
            smartRules_.show();
        }));
}

/// Sources may have been added while the user was elsewhere.
bool InputMethodSettingsScreen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        settings_.refreshSources();
        show();
    }
    return Page::event(event);
}

void InputMethodSettingsScreen::show()
{
    rules_.show();
    domainRules_.show();
    smartRules_.show();
}

} // namespace brindlex
