#include "clipboard/views/ClipboardOptionsSection.h"

#include <QLocale>

#include <string>

namespace brindlex {
namespace {

/// How high a row is that may have a warning, so that nothing moves when that comes.
constexpr int withWarning = 52;

} // namespace

ClipboardOptionsSection::ClipboardOptionsSection(Page& page, const ViewContext& context,
    ClipboardSettings& settings, const KeyRecording& recording)
    : context_(context), settings_(settings), modifiers_(recording.naming.modifiers),
      enabled_(new ToggleSwitch(context.theme, context.text<"clipboard.enable.title">(),
          [this](bool isOn) { settings_.setHistoryEnabled(isOn); })),
      hotkey_(new KeyRecorderField(context, context.text<"clipboard.hotkey.title">(), recording,
          [this](const HotkeyCombo& combo) { settings_.setHotkey(combo); })),
      pastesAutomatically_(
          new ToggleSwitch(context.theme, context.text<"clipboard.autoPaste.title">(),
              [this](bool isOn) { settings_.setPastesAutomatically(isOn); })),
      maxItems_(new Chooser(context.theme, context.text<"clipboard.maxItems.title">(),
          [this](const std::string& option) { settings_.setMaxItems(std::stoll(option)); }))
{
    makeRows(page.section());
    hotkey_->accepts = [this](const HotkeyCombo& combo) { return accepts(combo); };
    recordingChanges_
        = hotkey_->recording().stream().withoutFirst().subscribe([this](bool) { showHotkey(); });
    show();
}

void ClipboardOptionsSection::show()
{
    const auto& preferences = settings_.preferences().value();
    enabled_->show(preferences.isHistoryEnabled);
    pastesAutomatically_->show(preferences.pastesAutomatically);
    showHotkey();
    showMaxItems();
    for (auto* const row : dependentRows_)
        row->setEnabled(preferences.isHistoryEnabled);
}

void ClipboardOptionsSection::makeRows(Card& card)
{
    card.setting(context_.text<"clipboard.enable.title">(),
        context_.text<"clipboardTab.enableDescription">(), enabled_);
    hotkeyRow_ = &card.setting(context_.text<"clipboard.hotkey.title">(), {}, hotkey_);
    hotkeyRow_->setLeastHeight(withWarning);
    dependentRows_ = {hotkeyRow_,
        &card.setting(context_.text<"clipboard.autoPaste.title">(),
            context_.text<"clipboardTab.autoPasteDescription">(), pastesAutomatically_),
        &card.setting(context_.text<"clipboard.maxItems.title">(),
            context_.text<"clipboardTab.maxItemsDescription">(), maxItems_)};
}

/// Says of a key that will not do what is missing.
bool ClipboardOptionsSection::accepts(const HotkeyCombo& combo)
{
    const bool isHotkey = isClipboardHotkey(combo);
    hotkeyRow_->setWarning(isHotkey ? QString()
                                    : context_.text<"clipboardTab.hotkeyNeedsFormat">(
                                        modifiers_.control, modifiers_.option, modifiers_.command));
    return isHotkey;
}

/// One that somebody else has stored may be none that will do.
void ClipboardOptionsSection::showHotkey()
{
    const auto& hotkey = settings_.preferences().value().hotkey;
    hotkey_->show(hotkey);
    if (hotkey.keyCode < 0 || hotkey_->recording().value())
        hotkeyRow_->setWarning({});
    else
        accepts(hotkey);
}

void ClipboardOptionsSection::showMaxItems()
{
    const QLocale locale(QString::fromStdString(context_.strings.language()));
    const auto present = settings_.preferences().value().maxItems;
    std::vector<Chooser::Option> options;
    for (const auto limit : clipboardMaxItemsChoices(present))
        options.push_back({std::to_string(limit), locale.toString(qlonglong{limit}), {}});
    maxItems_->show(options, std::to_string(present));
}

} // namespace brindlex
