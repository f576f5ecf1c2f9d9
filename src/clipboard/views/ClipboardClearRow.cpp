#include "clipboard/views/ClipboardClearRow.h"

#include "ui/controls/Buttons.h"

#include <QKeyEvent>

#include <utility>

namespace brindlex {

ClipboardClearRow::ClipboardClearRow(const ViewContext& context, std::function<void()> clear)
    : Row(context.theme), context_(context), clear_(std::move(clear)),
      askButton_(makeButton(context.theme, ButtonRole::danger,
          context.text<"clipboard.clear.button">(), [this] { ask(true); })),
      confirmButton_(makeButton(context.theme, ButtonRole::danger,
          context.text<"clipboard.clear.button">(), [this] { confirm(); })),
      refuseButton_(makeButton(
          context.theme, ButtonRole::plain, context.text<"shared.cancel">(), [this] { refuse(); }))
{
    words(context.text<"clipboard.clear.title">(), context.text<"clipboardTab.clearDescription">());
    // What refuses stands where the first press was, so that a double click deletes nothing.
    end(confirmButton_).end(refuseButton_).end(askButton_);
    const auto question = context.text<"clipboard.clear.confirm">();
    confirmButton_->setAccessibleDescription(question);
    refuseButton_->setAccessibleDescription(question);
    ask(false);
}

void ClipboardClearRow::show(bool hasItems)
{
    if (!hasItems && isAsking())
        refuse();
    // The focus stays nearby.
    if (!hasItems && askButton_->hasFocus())
        focusPreviousChild();
    askButton_->setEnabled(hasItems);
}

void ClipboardClearRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && isAsking())
        refuse();
    else
        Row::keyPressEvent(event);
}

/// Whoever comes back later would not know what the question was about.
void ClipboardClearRow::hideEvent(QHideEvent* event)
{
    ask(false);
    Row::hideEvent(event);
}

bool ClipboardClearRow::isAsking() const { return !refuseButton_->isHidden(); }

void ClipboardClearRow::ask(bool isAsked)
{
    setSecond(isAsked ? context_.text<"clipboard.clear.confirm">()
                      : context_.text<"clipboardTab.clearDescription">());
    confirmButton_->setVisible(isAsked);
    refuseButton_->setVisible(isAsked);
    if (isAsked)
        refuseButton_->setFocus();
    askButton_->setVisible(!isAsked);
}

void ClipboardClearRow::refuse()
{
    const bool hadFocus = confirmButton_->hasFocus() || refuseButton_->hasFocus();
    askButton_->show();
    if (hadFocus)
        askButton_->setFocus();
    ask(false);
}

void ClipboardClearRow::confirm()
{
    refuse();
    clear_();
}

} // namespace brindlex
