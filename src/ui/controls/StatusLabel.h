#pragma once

#include "ui/controls/TextLabel.h"
#include "ui/controls/Theme.h"

#include <QWidget>

namespace brindlex {

/// A state: the word, and a dot that repeats it in a colour. The theme outlives it.
class StatusLabel : public QWidget {
public:
    explicit StatusLabel(const Theme& theme, QWidget* parent = nullptr);

    void show(Token dot, const QString& words);

private:
    class Dot;

    Dot* const dot_;
    TextLabel* const words_;
};

} // namespace brindlex
