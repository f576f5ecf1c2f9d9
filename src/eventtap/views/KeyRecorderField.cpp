#include "eventtap/views/KeyRecorderField.h"

#include <QEvent>

#include <utility>

namespace brindlex {
namespace {

constexpr HotkeyCombo noKey{.keyCode = -1, .modifiers = {}};

} // namespace

KeyRecorderField::KeyRecorderField(const ViewContext& context, const QString& name,
    const KeyRecording& recording, std::function<void(const HotkeyCombo&)> changed)
    : KeyCapsField(context.theme, name,
        {context.text<"controls.recorder.record">(), context.text<"controls.recorder.pressKey">(),
            context.text<"controls.recorder.clear">()}),
      naming_(recording.naming), changed_(std::move(changed)),
      recorder_(
          recording.tap, recording.activation,
          [this](const HotkeyCombo& combo) { changed_(combo); },
          [this](const HotkeyCombo& combo) { return !accepts || accepts(combo); }),
      recordingChanges_(recorder_.recording().subscribe([this](bool) { showNow(); }))
{
    connect(this, &QAbstractButton::clicked, this, [this] { recorder_.toggle(); });
    cleared = [this] {
        recorder_.stop();
        changed_(noKey);
    };
}

void KeyRecorderField::show(const HotkeyCombo& combo)
{
    combo_ = combo;
    showNow();
}

/// A field that cannot be used waits for no key.
void KeyRecorderField::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        recorder_.stop();
    KeyCapsField::changeEvent(event);
}

/// Nor does one that cannot be seen.
void KeyRecorderField::hideEvent(QHideEvent* event)
{
    recorder_.stop();
    KeyCapsField::hideEvent(event);
}

void KeyRecorderField::showNow()
{
    QStringList caps;
    for (const auto& cap : keyCaps(combo_, naming_))
        caps.push_back(QString::fromStdString(cap));
    KeyCapsField::show(caps, recorder_.recording().value());
}

} // namespace brindlex
