#pragma once

#include "ui/controls/Glyph.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/Theme.h"

#include <QIcon>
#include <QWidget>

#include <functional>

class QHBoxLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;

namespace brindlex {

/// A row of a card: a picture, words, and controls at its end. The theme outlives it.
class Row : public QWidget {
public:
    explicit Row(const Theme& theme, QWidget* parent = nullptr);

    /// What stands at its beginning, `size` logical pixels wide.
    Row& picture(const QIcon& icon, int size);
    /// What it is called; a second line says when one would want it.
    Row& words(const QString& title, const QString& second = {});
    /// A control at its end, behind those that are there.
    Row& end(QWidget* control);
    /// The same, as wide as there is room, in place of words.
    Row& fill(QWidget* control);
    /// The cross at its very end, and Delete; its name says what goes.
    Row& removable(const QString& name, std::function<void()> remove);
    /// Goes on with the row before it: no hairline between them, and no taller than its control.
    Row& continues();

    void setTitle(const QString& title);
    /// Other words under the name, of the role `second` or `warning`; none for none.
    void setSecond(const QString& words, TextRole role = TextRole::second);

    bool continuesRow() const { return continues_; }
    /// Where the hairline above it begins, from the left.
    int wordsLeft() const;
    /// Whether the pointer or the focus is in it.
    bool isHot() const { return isHovered_ || hasFocusWithin_; }
    bool isRemovable() const { return remove_ != nullptr; }

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeWords();
    void noteFocus(const QWidget* focused);
    void noteHot();

    const Theme& theme_;
    QHBoxLayout* const layout_;
    QWidget* wordsBox_ = nullptr;
    TextLabel* title_ = nullptr;
    QWidget* secondLine_ = nullptr;
    TextLabel* second_ = nullptr;
    QLabel* warning_ = nullptr;
    QToolButton* cross_ = nullptr;
    std::function<void()> remove_;
    bool continues_ = false;
    bool isHovered_ = false;
    bool hasFocusWithin_ = false;
};

} // namespace brindlex
