#pragma once

#include "ui/controls/TextLabel.h"
#include "ui/controls/Theme.h"

#include <QSlider>
#include <QWidget>

#include <functional>

namespace brindlex {

/// One of a few steps, with the value in words beside it. The theme outlives it.
class StepSlider : public QWidget {
public:
    struct Steps {
        int least = 0;
        int most = 0;
        /// The words for a step.
        std::function<QString(int step)> text{};
    };

    /// `name` is what a screen reader calls it; `moved` is called with each step that the user
    /// moves it to.
    StepSlider(const Theme& theme, const QString& name, Steps steps,
        std::function<void(int step)> moved, QWidget* parent = nullptr);

    /// Shows the step, and notifies nobody. The words are those of a value that stands between two
    /// steps, if it does.
    void show(int step, const QString& words);

private:
    class Slider;

    Slider* const slider_;
    TextLabel* const value_;
};

} // namespace brindlex
