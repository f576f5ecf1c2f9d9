#include "logviewer/views/LogDetail.h"

#include "logviewer/views/LogTableModel.h"
#include "ui/controls/Buttons.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int leastHeight = 53;
constexpr int margin = 12;
constexpr int gap = 8;

/// What is shown of a message at the most.
constexpr std::size_t mostBytes = 4'000;

} // namespace

LogDetail::LogDetail(const ViewContext& context, std::function<const LogEntry*()> selected)
    : context_(context), selected_(std::move(selected)),
      message_(new TextLabel(context.theme, TextRole::body, {})),
      place_(new TextLabel(context.theme, TextRole::second, {}))
{
    setObjectName("foot");
    setMinimumHeight(leastHeight);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, 0, margin, 0);
    layout->setSpacing(gap);
    layout->addWidget(makeWords(), 1);
    layout->addWidget(makeButton(context.theme, ButtonRole::plain,
        context.text<"logs.copyMessage">(), [this] { copy(&LogEntry::message); }));
    layout->addWidget(makeButton(context.theme, ButtonRole::plain,
        context.text<"logs.copyRawEntry">(), [this] { copy(&LogEntry::raw); }));
    hide();
}

void LogDetail::show(const LogEntry* entry)
{
    setVisible(entry);
    if (!entry)
        return;
    const auto length = std::min(entry->message.size(), mostBytes);
    message_->setText(QString::fromUtf8(entry->message.data(), static_cast<qsizetype>(length)));
    place_->setText(
        QString::fromStdString(entry->location) + QStringLiteral("  ·  ") + dayAndTimeOf(*entry));
}

/// Both lines take what room there is.
QWidget* LogDetail::makeWords()
{
    auto* const words = new QWidget;
    auto* const column = new QVBoxLayout(words);
    column->setContentsMargins(4, 4, 0, 4);
    column->setSpacing(1);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    place_->setWordWrap(false);
    for (auto* const line : {message_, place_}) {
        line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        column->addWidget(line);
    }
    return words;
}

void LogDetail::copy(std::string LogEntry::*text) const
{
    if (const auto* const entry = selected_())
        QApplication::clipboard()->setText(QString::fromStdString(entry->*text));
}

} // namespace brindlex
