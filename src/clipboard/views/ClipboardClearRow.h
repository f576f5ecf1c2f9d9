#pragma once

#include "ui/controls/Row.h"
#include "ui/controls/ViewContext.h"

#include <functional>

class QPushButton;

namespace brindlex {

/// The row that deletes the history, once it is sure that this is meant: it asks in place, and
/// until it is answered its button gives way to one that deletes and one that refuses, which has
/// the focus. Escape refuses, too.
class ClipboardClearRow : public Row {
public:
    /// `clear` is called when the user has confirmed.
    ClipboardClearRow(const ViewContext& context, std::function<void()> clear);

    /// Whether there is anything to delete; without that a question that is open goes.
    void show(bool hasItems);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    bool isAsking() const;
    void ask(bool isAsked);
    void refuse();
    void confirm();

    const ViewContext context_;
    const std::function<void()> clear_;
    QPushButton* const askButton_;
    QPushButton* const confirmButton_;
    QPushButton* const refuseButton_;
};

} // namespace brindlex
