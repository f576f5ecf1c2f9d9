#pragma once

#include "ui/controls/Card.h"
#include "ui/controls/ViewContext.h"

#include <QScrollArea>

#include <functional>

class QScrollBar;
class QVBoxLayout;

namespace brindlex {

class UndoBar;

/// Cards under their headings, in a column that scrolls when the window is too low. The scroll bar
/// lies over the margin, so that nothing moves when it comes.
class Page : public QScrollArea {
public:
    explicit Page(const ViewContext& context, QWidget* parent = nullptr);
    ~Page() override;

    /// A card under a heading, with a line under that if there is one; without a heading it goes on
    /// with the card before it.
    Card& section(const QString& heading = {}, const QString& second = {});

    /// Anything else, in the column.
    void add(QWidget* widget);
    /// Keeps what was added at the top.
    void finish();

    /// Says for a few seconds that something has been removed, and how to bring it back.
    void offerUndo(const QString& removed, std::function<void()> undo);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    void putInOrder() const;
    void follow(const QWidget* focused);

    const ViewContext context_;
    QWidget* const ground_;
    QWidget* const column_;
    QVBoxLayout* const layout_;
    QScrollBar* const bar_;
    UndoBar* undoBar_ = nullptr;
};

} // namespace brindlex
