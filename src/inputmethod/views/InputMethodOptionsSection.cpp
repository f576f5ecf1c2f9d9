#include "inputmethod/views/InputMethodOptionsSection.h"

namespace brindlex {

InputMethodOptionsSection::InputMethodOptionsSection(
    Page& page, const ViewContext& context, InputMethodSettings& settings)
    : settings_(settings),
      enabled_(new ToggleSwitch(context.theme, context.text<"inputMethod.enabled">(),
          [this](bool isOn) {
              settings_.change([&](InputMethodConfig& config) { config.enabled = isOn; });
          })),
      showHUD_(
          new ToggleSwitch(context.theme, context.text<"inputMethod.showHUD">(), [this](bool isOn) {
              settings_.change([&](InputMethodConfig& config) { config.showHUD = isOn; });
          }))
{
    auto& card = page.section(context.text<"inputMethod.options.title">());
    card.setting(context.text<"inputMethod.enabled">(),
        context.text<"inputMethod.enabledDescription">(), enabled_);
    card.setting(context.text<"inputMethod.showHUD">(),
        context.text<"inputMethod.showHUDDescription">(), showHUD_);
    show();
}

void InputMethodOptionsSection::show()
{
    enabled_->show(settings_.config().enabled);
    showHUD_->show(settings_.config().showHUD);
}

} // namespace brindlex
