#include "clipboard/views/ClipboardPickerView.h"

#include "clipboard/views/ClipboardSearchField.h"
#include "platform/VirtualKey.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/TableCells.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/TextSize.h"

#include <QBoxLayout>
#include <QFrame>
#include <QListView>
#include <QStackedWidget>

#include <algorithm>
#include <array>
#include <utility>

namespace brindlex {
namespace {

constexpr int panelWidth = 680;
constexpr int rowHeight = 52;
constexpr int mostRows = 8;
constexpr int leastRows = 3;
constexpr int searchHeight = 44;
constexpr int topMargin = 10;
constexpr int sideMargin = 12;
constexpr int footHeight = 36;
constexpr int hintGap = 18;
constexpr int capGap = 6;

QString joined(const std::vector<std::string>& caps)
{
    QStringList names;
    for (const auto& cap : caps)
        names << QString::fromStdString(cap);
    return names.join(QLatin1Char('+'));
}

} // namespace

ClipboardPickerView::ClipboardPickerView(const ViewContext& context, const KeyNaming& keys,
    ClipboardRowSources sources, std::shared_ptr<ClipboardPicker> picker)
    : picker_(std::move(picker)), search_(new ClipboardSearchField(context.theme,
                                      context.text<"clipboard.search.placeholder">(), *picker_)),
      list_(new QListView), rows_(new ClipboardItemRows(context, std::move(sources), this)),
      middle_(new QStackedWidget)
{
    setObjectName("window");
    setAccessibleName(context.text<"clipboard.enable.title">());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(makeTop(context));
    middle_->addWidget(makeList(context));
    middle_->addWidget(makeNothing(context));
    layout->addWidget(middle_);
    layout->addWidget(makeHints(context, keys));
    setFixedWidth(grownWithText(panelWidth));
    setFocusProxy(search_);

    const auto count = static_cast<int>(picker_->content().value().items.size());
    middle_->setFixedHeight(std::clamp(count, leastRows, mostRows) * grownWithText(rowHeight));
    contentChanges_ = picker_->content().subscribe(
        [this](const ClipboardPicker::Content& content) { showContent(content); });
    showContent(picker_->content().value());
}

QWidget* ClipboardPickerView::makeTop(const ViewContext& context)
{
    auto* const top = new QFrame;
    top->setObjectName("bar");
    auto* const layout = new QHBoxLayout(top);
    layout->setContentsMargins(sideMargin, topMargin, sideMargin, topMargin);
    search_->setFixedHeight(grownWithText(searchHeight));
    layout->addWidget(search_, 1);
    layout->addWidget(makeCategories(context));
    return top;
}

QWidget* ClipboardPickerView::makeCategories(const ViewContext& context)
{
    auto* const frame = new QFrame;
    frame->setObjectName("segments");
    auto* const layout = new QHBoxLayout(frame);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(0);
    const std::array<std::pair<ClipboardCategory, QString>, 4> words{{
        {ClipboardCategory::all, context.text<"clipboard.category.all">()},
        {ClipboardCategory::text, context.text<"clipboard.category.text">()},
        {ClipboardCategory::image, context.text<"clipboard.category.image">()},
        {ClipboardCategory::file, context.text<"clipboard.category.file">()},
    }};
    for (const auto& [category, word] : words) {
        auto* const button = makeButton(context.theme, ButtonRole::segment, word,
            [this, category = category] { picker_->setCategory(category); });
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button);
        categories_.push_back(button);
    }
    return frame;
}

QWidget* ClipboardPickerView::makeList(const ViewContext& context)
{
    list_->setObjectName("ground");
    list_->setAccessibleName(context.text<"clipboard.enable.title">());
    list_->setModel(rows_);
    list_->setItemDelegate(new TableCells(context.theme, rowHeight, list_));
    list_->setUniformItemSizes(true);
    list_->setFocusPolicy(Qt::NoFocus);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(list_, &QListView::clicked, this, [this](const QModelIndex& index) {
        picker_->commitItem(static_cast<std::size_t>(index.row()));
    });
    return list_;
}

/// What stands in the middle where no item is visible.
QWidget* ClipboardPickerView::makeNothing(const ViewContext& context)
{
    auto* const nothing = new QWidget;
    auto* const layout = new QVBoxLayout(nothing);
    layout->addStretch();
    layout->addWidget(
        new EmptyState(context.theme, Glyph::clipboard, context.text<"clipboard.empty">()));
    layout->addStretch();
    return nothing;
}

QWidget* ClipboardPickerView::makeHints(const ViewContext& context, const KeyNaming& keys)
{
    auto* const foot = new QFrame;
    foot->setObjectName("foot");
    foot->setMinimumHeight(grownWithText(footHeight));
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(capGap);
    const auto hint = [&](const QString& caps, const QString& words) {
        layout->addWidget(new TextLabel(context.theme, TextRole::body, caps));
        layout->addWidget(new TextLabel(context.theme, TextRole::value, words));
    };
    const auto caps = [&](std::int64_t keyCode, ModifierSet modifiers = {}) {
        return joined(keyCaps({.keyCode = keyCode, .modifiers = modifiers}, keys));
    };
    hint(caps(virtualKey::returnKey), context.text<"clipboard.hint.paste">());
    layout->addSpacing(hintGap);
    hint(QString::fromStdString(keys.modifiers.command) + QStringLiteral("+1–9"),
        context.text<"clipboard.hint.quick">());
    layout->addSpacing(hintGap);
    hint(caps(virtualKey::space, ModifierSet::option), context.text<"clipboard.hint.preview">());
    layout->addStretch();
    hint(caps(virtualKey::escape), context.text<"clipboard.hint.close">());
    return foot;
}

void ClipboardPickerView::showContent(const ClipboardPicker::Content& content)
{
    if (shown_ != content.items) {
        shown_ = content.items;
        rows_->show(content.items);
    }
    middle_->setCurrentIndex(content.items.empty() ? 1 : 0);
    list_->setCurrentIndex(rows_->index(rows_->rowOf(content.selected)));
    for (std::size_t index = 0; index < categories_.size(); ++index)
        categories_[index]->setChecked(index == static_cast<std::size_t>(content.category));
}

} // namespace brindlex
