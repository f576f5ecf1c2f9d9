#pragma once

#include "ui/controls/Theme.h"

#include <QLineEdit>

namespace brindlex {

/// A line to look for something in. `hint` stands in it while it is empty, and is what a screen
/// reader calls it. Escape empties it. The theme outlives it.
class SearchField : public QLineEdit {
public:
    SearchField(const Theme& theme, const QString& hint, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace brindlex
