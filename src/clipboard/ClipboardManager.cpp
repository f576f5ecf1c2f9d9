#include "clipboard/ClipboardManager.h"

#include "clipboard/ClipboardHistoryMonitor.h"
#include "clipboard/ClipboardPickerPanelController.h"
#include "clipboard/ClipboardPreferenceKeys.h"
#include "clipboard/ClipboardReader.h"
#include "platform/PasteKeystroke.h"

#include <utility>

namespace brindlex {
namespace {

constexpr Seconds preferenceCheckDelay = 0.25;
constexpr Seconds warmUpDelay = 0.25;
/// How long the application in front gets to take the keys.
constexpr Seconds pasteDelay = 0.08;

bool isHotkey(const Event& event, const HotkeyCombo& hotkey)
{
    return event.value(EventField::eventSourceUserData) != pasteEventTag
        && event.value(EventField::keyboardEventKeycode) == hotkey.keyCode
        && ModifierSet::fromEventFlags(event.flags) == hotkey.modifiers;
}

EventTriggers triggersOf(const HotkeyCombo& hotkey)
{
    return {.keys = {{hotkey.keyCode, hotkey.modifiers.eventFlags()}}};
}

} // namespace

ClipboardManager::ClipboardManager(const Abilities& abilities, const Parts& parts)
    : abilities_(abilities), parts_(parts)
{
}

void ClipboardManager::start()
{
    applyMonitoring();
    installHotkey();
    lastEnabled_ = isEnabled();
    lastHotkey_ = hotkey();
    defaultsChanges_ = abilities_.defaults.observeChanges([this] { awaitPreferenceCheck(); });
    scheduleWarmUp();
}

void ClipboardManager::stop()
{
    removeHotkey();
    pickerWarmUpTask_.reset();
    parts_.monitor.stop();
    preferenceCheck_.reset();
    defaultsChanges_.reset();
}

void ClipboardManager::showPicker()
{
    previousApp_ = abilities_.applications.frontmost();
    parts_.pickerPanel.show({
        .onSelect = [this](const SharedClipboardItem& item) { pasteBack(*item); },
        .onDismiss = {},
    });
}

bool ClipboardManager::isEnabled() const
{
    return readPreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardHistoryEnabled);
}

HotkeyCombo ClipboardManager::hotkey() const
{
    return readPreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardHotkey);
}

void ClipboardManager::applyMonitoring()
{
    if (isEnabled())
        parts_.monitor.start();
    else
        parts_.monitor.stop();
}

void ClipboardManager::installHotkey()
{
    removeHotkey();
    if (!isEnabled())
        return;
    const auto combo = hotkey();
    const auto receive = [this, combo, alive = lifetime_.watch()](const Event& event) {
        if (alive.expired() || !isHotkey(event, combo))
            return EventVerdict::pass;
        showPicker();
        return EventVerdict::swallow;
    };
    hotkeyToken_
        = abilities_.tap.subscribe(eventMask(EventType::keyDown), receive, triggersOf(combo));
}

void ClipboardManager::removeHotkey()
{
    if (const auto token = std::exchange(hotkeyToken_, std::nullopt))
        abilities_.tap.unsubscribe(*token);
}

void ClipboardManager::awaitPreferenceCheck()
{
    preferenceCheck_
        = abilities_.mainThread.after(preferenceCheckDelay, [this] { checkPreferences(); });
}

void ClipboardManager::checkPreferences()
{
    if (const bool enabled = isEnabled(); lastEnabled_ != enabled) {
        lastEnabled_ = enabled;
        applyMonitoring();
        installHotkey();
        scheduleWarmUp();
    }
    if (const auto combo = hotkey(); lastHotkey_ != combo) {
        lastHotkey_ = combo;
        installHotkey();
    }
}

void ClipboardManager::scheduleWarmUp()
{
    pickerWarmUpTask_.reset();
    if (isEnabled())
        pickerWarmUpTask_
            = abilities_.mainThread.after(warmUpDelay, [this] { parts_.pickerPanel.warmUp(); });
}

void ClipboardManager::pasteBack(const ClipboardItem& item)
{
    const bool pastes
        = readPreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardAutoPaste);
    ClipboardReader::write(item, parts_.store, abilities_.pasteboard);
    if (previousApp_)
        abilities_.activating.activate(previousApp_->processIdentifier);
    if (pastes)
        postPasteLater();
}

/// Whatever happens until then.
void ClipboardManager::postPasteLater()
{
    const auto task = pasteTasks_.emplace(pasteTasks_.end());
    *task = abilities_.mainThread.after(pasteDelay, [this, task] {
        abilities_.pasting.postPaste();
        pasteTasks_.erase(task);
    });
}

} // namespace brindlex
