#pragma once

#include "ui/controls/Row.h"
#include "ui/controls/Theme.h"

#include <QFrame>

#include <vector>

class QVBoxLayout;

namespace brindlex {

/// One question of the user's: rows on a ground with round corners, a hairline between each two.
/// The theme outlives it.
class Card : public QFrame {
public:
    explicit Card(const Theme& theme, QWidget* parent = nullptr);

    /// Behind those that are there.
    Row& add(Row* row);
    /// A row of another kind; the hairline above it goes from edge to edge.
    void add(QWidget* row);
    /// In front of the row at the index; moves one that is there.
    void insert(int index, Row* row);
    /// Takes the row out and destroys it, from the loop: it may be asking for it itself.
    void remove(QWidget* row);

    /// Lets assistive technology find the rows in the order in which they stand.
    void putInOrder();

    /// A row with a name, a second line if it has one, and a control.
    Row& setting(const QString& title, const QString& second, QWidget* control);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    QVBoxLayout* const layout_;
};

} // namespace brindlex
