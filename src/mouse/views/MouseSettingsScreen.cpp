#include "mouse/views/MouseSettingsScreen.h"

namespace brindlex {

MouseSettingsScreen::MouseSettingsScreen(const ViewContext& context, MouseSettings& settings,
    MouseConfigStore& store, const KeyRecording& recording,
    const ApplicationChoosing& chooseApplication)
    : Page(context), click_(*this, context, settings, recording),
      gesture_(*this, context, settings, recording), scroll_(*this, context, settings),
      disabledApps_(*this, context, settings, chooseApplication),
      changes_(store.config().stream().withoutFirst().subscribe([this](const auto&) {
          click_.show();
          gesture_.show();
          scroll_.show();
          disabledApps_.show();
      }))
{
    finish();
}

} // namespace brindlex
