#pragma once

#include "ui/controls/Theme.h"

#include <QAbstractButton>
#include <QStringList>

#include <functional>

namespace brindlex {

/// Shows a key with its modifiers as caps. A press begins to record another one, and the cross at
/// its end, or Backspace, takes the key away. The theme outlives it.
///
/// It only shows: who made it records the keys and says what there is to see.
class KeyCapsField : public QAbstractButton {
public:
    /// What it says in words.
    struct Words {
        QString record{};
        QString pressKey{};
        QString clear{};
    };

    /// `name` is what a screen reader calls it.
    KeyCapsField(const Theme& theme, const QString& name, Words words, QWidget* parent = nullptr);

    /// The caps, modifiers first; none while no key is set.
    void show(const QStringList& caps, bool isRecording);

    /// Called when the user takes the key away.
    std::function<void()> cleared{};

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool hasCross() const { return isEnabled() && (!caps_.isEmpty() || isRecording_); }
    Token edge() const;
    Token ink() const { return isEnabled() ? &ThemeTokens::text : &ThemeTokens::subdued; }
    QRect crossRect() const;
    int capsWidth() const;
    int capWidth(const QString& cap) const;
    void paintCaps(QPainter& painter) const;
    QString shownText() const;
    void takeAway() const;

    const Theme& theme_;
    const QString name_;
    const Words words_;
    QStringList caps_;
    bool isRecording_ = false;
};

} // namespace brindlex
