#pragma once

#include "ui/controls/TextLabel.h"
#include "ui/controls/Theme.h"

#include <QFrame>
#include <QTimer>

#include <functional>

class QPushButton;

namespace brindlex {

/// Says at the lower edge of its parent for six seconds what has been removed, with a button that
/// brings it back. The theme outlives it.
class UndoBar : public QFrame {
public:
    UndoBar(const Theme& theme, const QString& undoText, QWidget* parent);

    /// Says it; what was offered before is offered no more. While the pointer or the focus is on
    /// the bar it stays.
    void offer(const QString& words, std::function<void()> undo);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    void takeBack();
    void leave();

    const Theme& theme_;
    TextLabel* const words_;
    QPushButton* const button_;
    QTimer timer_;
    std::function<void()> undo_;
};

} // namespace brindlex
