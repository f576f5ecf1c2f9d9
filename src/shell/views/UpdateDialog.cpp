#include "shell/views/UpdateDialog.h"

#include "ui/controls/GlyphLabel.h"
#include "ui/controls/TextSize.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <utility>

namespace brindlex {
namespace {

constexpr int openingWidth = 480;
constexpr int openingHeight = 420;
constexpr QSize leastSizeWithNotes{400, 280};
constexpr int footHeight = 48;
constexpr int footMargin = 16;
constexpr int margin = 24;
constexpr int gap = 8;
constexpr int iconSize = 48;

} // namespace

UpdateDialog::UpdateDialog(const ViewContext& context, const UpdateMessage& message,
    std::function<void(const std::string& address)> openPage)
    : context_(context), openPage_(std::move(openPage))
{
    setObjectName("window");
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(makeHead());
    layout->addWidget(makeNotes(), 1);
    layout->addWidget(makeFoot());
    context.theme.dress(*this);
    setMessage(message);
}

void UpdateDialog::setMessage(const UpdateMessage& message)
{
    message_ = message;
    const auto title = QString::fromStdString(message.title);
    setWindowTitle(title);
    title_->setText(title);
    detail_->setText(QString::fromStdString(message.detail));
    notes_->setPlainText(QString::fromStdString(message.notes));
    notesBox_->setVisible(!message.notes.empty());
    openPageButton_->setVisible(!message.address.empty());
    auto* const first = message.address.empty() ? close_ : openPageButton_;
    first->setDefault(true);
    first->setFocus();
    fit();
    if (!message.notes.empty())
        resize(grownWithText(QSize(openingWidth, openingHeight)));
}

/// Words change their size with the desktop's font.
bool UpdateDialog::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        fit();
    return QDialog::event(event);
}

QWidget* UpdateDialog::makeHead()
{
    auto* const head = new QWidget;
    auto* const layout = new QHBoxLayout(head);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin - gap);
    layout->addWidget(new GlyphLabel(QApplication::windowIcon(), iconSize), 0, Qt::AlignTop);
    auto* const words = new QVBoxLayout;
    words->setSpacing(gap / 2);
    title_ = new TextLabel(context_.theme, TextRole::title, {});
    title_->setWordWrap(true);
    detail_ = new TextLabel(context_.theme, TextRole::second, {});
    detail_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    words->addWidget(title_);
    words->addWidget(detail_);
    words->addStretch();
    layout->addLayout(words, 1);
    return head;
}

QWidget* UpdateDialog::makeNotes()
{
    notesBox_ = new QWidget;
    auto* const layout = new QVBoxLayout(notesBox_);
    layout->setContentsMargins(margin, 0, margin, margin);
    layout->setSpacing(gap);
    const auto name = context_.text<"updates.notes">();
    layout->addWidget(new TextLabel(context_.theme, TextRole::heading, name));
    notes_ = new QPlainTextEdit;
    notes_->setReadOnly(true);
    notes_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    notes_->setTabChangesFocus(true);
    notes_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    notes_->setAccessibleName(name);
    layout->addWidget(notes_, 1);
    return notesBox_;
}

QWidget* UpdateDialog::makeFoot()
{
    auto* const foot = new QFrame;
    foot->setObjectName("foot");
    foot->setMinimumHeight(footHeight);
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins(footMargin, 0, footMargin, 0);
    layout->setSpacing(gap);
    layout->addStretch();
    close_ = makeButton(
        context_.theme, ButtonRole::plain, context_.text<"updates.close">(), [this] { reject(); });
    openPageButton_ = makeButton(context_.theme, ButtonRole::defaultAction,
        context_.text<"updates.openPage">(), [this] { visitPage(); });
    layout->addWidget(close_);
    layout->addWidget(openPageButton_);
    return foot;
}

void UpdateDialog::visitPage()
{
    const auto address = message_.address;
    accept();
    openPage_(address);
}

/// Lines that wrap are measured at the real width.
void UpdateDialog::fit()
{
    if (message_.notes.empty()) {
        const int width = grownWithText(openingWidth);
        setFixedSize(width, layout()->totalHeightForWidth(width));
        return;
    }
    setMinimumSize(grownWithText(leastSizeWithNotes));
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace brindlex
