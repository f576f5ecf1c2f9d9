#pragma once

#include "ui/controls/Theme.h"

#include <QComboBox>

#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// One of several, from a list that opens. The wheel chooses only while it has the focus, so that a
/// page scrolls past it. The theme outlives it.
class Chooser : public QComboBox {
public:
    struct Option {
        /// What stands for it in the program.
        std::string value{};
        QString text{};
        /// Two or three letters in front of the text, or none.
        QString badge{};

        bool operator==(const Option&) const = default;
    };

    /// `name` is what a screen reader calls it; `chosen` is called with the option that the user
    /// has chosen.
    Chooser(const Theme& theme, const QString& name,
        std::function<void(const std::string& value)> chosen, QWidget* parent = nullptr);

    /// Shows these options with this one chosen, and notifies nobody.
    void show(const std::vector<Option>& options, const std::string& value);

    /// Shows the choice as one that does not work.
    void setBad(bool isBad);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void fill(const std::vector<Option>& options);

    const Theme& theme_;
    std::vector<Option> options_;
};

} // namespace brindlex
