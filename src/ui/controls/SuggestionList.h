#pragma once

#include "ui/controls/Theme.h"

#include <QIcon>
#include <QListView>

#include <functional>
#include <vector>

class QAbstractScrollArea;
class QLineEdit;
class QStandardItemModel;

namespace brindlex {

/// What is suggested, and what stands at the other end of its line.
struct Suggestion {
    QString text;
    QString detail;
    QIcon icon;
};

/// Suggestions under a line of text. They are no window and take neither the focus nor the
/// keyboard, so that however fast the user types, each letter goes into the line. Up and Down
/// choose, Return or a click takes, Escape closes, as does leaving the line. The theme outlives it.
class SuggestionList : public QListView {
public:
    /// For a field on the ground, over which it lies. Chosen texts are given to the function.
    SuggestionList(const Theme& theme, QLineEdit& field, QAbstractScrollArea& ground,
        std::function<void(const QString&)> take);

    /// Shows them with none chosen; without any it closes.
    void suggest(const std::vector<Suggestion>& suggestions);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool handleKey(int key);
    void choose(int row);
    void take(const QModelIndex& index);
    void place();

    QLineEdit& field_;
    QAbstractScrollArea& ground_;
    QStandardItemModel* const model_;
    const std::function<void(const QString&)> take_;
};

} // namespace brindlex
