#pragma once

#include "ui/controls/Glyph.h"
#include "ui/controls/Theme.h"

#include <QWidget>

#include <functional>

namespace brindlex {

/// What stands where there is nothing yet: a picture, a sentence, and the one button that changes
/// it, unless `action` is empty. The theme outlives it.
class EmptyState : public QWidget {
public:
    EmptyState(const Theme& theme, Glyph glyph, const QString& sentence, const QString& action = {},
        std::function<void()> pressed = {}, QWidget* parent = nullptr);
};

} // namespace brindlex
