#include "clipboard/views/ClipboardSettingsScreen.h"

namespace brindlex {

ClipboardSettingsScreen::ClipboardSettingsScreen(const ViewContext& context,
    ClipboardSettings& settings, const KeyRecording& recording,
    const std::function<void(const std::filesystem::path&)>& openFolder)
    : Page(context), meter_(settings.historyMeter()), options_(*this, context, settings, recording),
      history_(*this, context, settings, openFolder),
      preferenceChanges_(settings.preferences().stream().withoutFirst().subscribe(
          [this](const auto&) { options_.show(); })),
      measureChanges_(meter_.measure().stream().withoutFirst().subscribe(
          [this](const auto&) { history_.show(); }))
{
    finish();
}

ClipboardSettingsScreen::~ClipboardSettingsScreen() { meter_.stop(); }

void ClipboardSettingsScreen::showEvent(QShowEvent* event)
{
    meter_.start();
    Page::showEvent(event);
}

void ClipboardSettingsScreen::hideEvent(QHideEvent* event)
{
    meter_.stop();
    Page::hideEvent(event);
}

} // namespace brindlex
