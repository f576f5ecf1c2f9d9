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

    /// In logical pixels, with words of the usual size; larger ones make it higher.
    Row& setLeastHeight(int height);

    void setTitle(const QString& title);
    /// Other words under the name, or none.
    void setSecond(const QString& words);
    /// What is wrong and what to do, under all other words; nothing while nothing is.
    void setWarning(const QString& words);

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
    void makeWarning();
    void show(TextLabel& label, QWidget& line, const QString& words);
    void noteFocus(const QWidget* focused);
    void noteHot();

    const Theme& theme_;
    QHBoxLayout* const layout_;
    QWidget* wordsBox_ = nullptr;
    TextLabel* title_ = nullptr;
    TextLabel* second_ = nullptr;
    QWidget* warningLine_ = nullptr;
    TextLabel* warning_ = nullptr;
    QToolButton* cross_ = nullptr;
    std::function<void()> remove_;
    int leastHeight_ = 0;
    bool isHovered_ = false;
    bool hasFocusWithin_ = false;
};

} // namespace brindlex
