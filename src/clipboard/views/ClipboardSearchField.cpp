#include "clipboard/views/ClipboardSearchField.h"

#include "clipboard/views/PickerKeyOfEvent.h"

#include <QKeyEvent>

namespace brindlex {

ClipboardSearchField::ClipboardSearchField(
    const Theme& theme, const QString& hint, ClipboardPicker& picker)
    : SearchField(theme, hint), picker_(picker)
{
    connect(this, &QLineEdit::textChanged, this,
        [this](const QString& query) { picker_.setQuery(query.toStdString()); });
}

/// Tab leads nowhere else, and no key is taken for a menu's before it came here.
bool ClipboardSearchField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    const auto* const key = dynamic_cast<QKeyEvent*>(event);
    const bool leads = key && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab);
    return leads || SearchField::event(event);
}

void ClipboardSearchField::keyPressEvent(QKeyEvent* event)
{
    const auto key = pickerKeyOf(*event);
    if (!key || !picker_.handleKey(*key))
        SearchField::keyPressEvent(event);
}

void ClipboardSearchField::keyReleaseEvent(QKeyEvent* event)
{
    // While a key is held, what looks like its release is none.
    const auto key = event->isAutoRepeat() ? std::nullopt : pickerKeyOf(*event);
    if (!key || !picker_.handleKey(*key))
        SearchField::keyReleaseEvent(event);
}

} // namespace brindlex
