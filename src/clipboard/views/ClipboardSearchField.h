#pragma once

#include "clipboard/ClipboardPicker.h"
#include "ui/controls/SearchField.h"

namespace brindlex {

/// The field of the picker's query. It keeps the focus all the time: keys that mean something to
/// the picker act on its list, all others edit the query. The picker outlives it.
class ClipboardSearchField : public SearchField {
public:
    ClipboardSearchField(const Theme& theme, const QString& hint, ClipboardPicker& picker);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    ClipboardPicker& picker_;
};

} // namespace brindlex
