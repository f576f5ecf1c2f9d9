#include "applications/views/ApplicationChooser.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/TableCells.h"
#include "ui/controls/TextSize.h"

#include <QAbstractListModel>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListView>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <map>
#include <utility>

namespace brindlex {
namespace {

constexpr QSize openingSize{460, 520};
constexpr QSize leastSize{360, 300};
constexpr int searchHeight = 56;
constexpr int footHeight = 48;
constexpr int rowHeight = 52;
constexpr int margin = 16;
constexpr int gap = 8;
/// A name that is longer is none.
constexpr std::size_t mostBytes = 400;

} // namespace

/// The applications that match, with their pictures as they come into sight.
class ApplicationChooser::Model : public QAbstractListModel {
public:
    Model(const ViewContext& context, Pictures pictures, QObject* parent)
        : QAbstractListModel(parent), context_(context), pictures_(std::move(pictures))
    {
    }

    void show(std::vector<ApplicationChoice> choices)
    {
        beginResetModel();
        choices_ = std::move(choices);
        endResetModel();
    }
    const ApplicationChoice& at(int row) const { return choices_[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(choices_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const auto& choice = at(index.row());
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return QString::fromStdString(choice.name.substr(0, mostBytes));
        if (role == secondLineRole)
            return choice.isRunning ? context_.text<"chooser.running">()
                                    : QString::fromStdString(choice.identifier);
        if (role == Qt::DecorationRole)
            return pictureOf(choice);
        return {};
    }

private:
    QIcon pictureOf(const ApplicationChoice& choice) const
    {
        auto& picture = made_[choice.path];
        if (picture.isNull())
            picture = pictures_(choice.path);
        if (picture.isNull())
            picture = glyphIcon(context_.theme, Glyph::application, &ThemeTokens::subdued);
        return picture;
    }

    const ViewContext context_;
    const Pictures pictures_;
    std::vector<ApplicationChoice> choices_;
    mutable std::map<std::filesystem::path, QIcon> made_;
};

ApplicationChooser::ApplicationChooser(const ViewContext& context,
    std::vector<ApplicationChoice> choices, Pictures pictures, Picking pick,
    std::function<void(const std::filesystem::path& bundle)> chosen, QWidget* parent)
    : QDialog(parent), context_(context), choices_(std::move(choices)), pick_(std::move(pick)),
      chosen_(std::move(chosen)),
      search_(new SearchField(context.theme, context.text<"chooser.search">())),
      list_(new QListView), model_(new Model(context, std::move(pictures), this)),
      middle_(new QStackedWidget)
{
    setObjectName("window");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(context.text<"chooser.title">());
    setMinimumSize(leastSize);
    resize(grownWithText(openingSize));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    auto* const top = new QWidget;
    top->setMinimumHeight(searchHeight);
    auto* const topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(margin, 0, margin, 0);
    topLayout->addWidget(search_);
    layout->addWidget(top);
    makeSearch();
    makeList();
    middle_->addWidget(list_);
    middle_->addWidget(
        new EmptyState(context.theme, Glyph::search, context.text<"chooser.empty">()));
    layout->addWidget(middle_, 1);
    layout->addWidget(makeFoot());
    context.theme.dress(*this);
    search({});
    search_->setFocus();
}

/// The arrows move through the list while the focus stays in the field.
bool ApplicationChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != search_ || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto* const key = dynamic_cast<QKeyEvent*>(event);
    const int step = key->key() == Qt::Key_Down ? 1 : key->key() == Qt::Key_Up ? -1 : 0;
    const auto next = model_->index(list_->currentIndex().row() + step);
    if (step == 0)
        return false;
    if (next.isValid())
        list_->setCurrentIndex(next);
    return true;
}

void ApplicationChooser::makeSearch()
{
    search_->installEventFilter(this);
    connect(
        search_, &QLineEdit::textChanged, this, [this](const QString& query) { search(query); });
}

void ApplicationChooser::makeList()
{
    list_->setObjectName("ground");
    list_->setAccessibleName(windowTitle());
    list_->setModel(model_);
    list_->setItemDelegate(new TableCells(context_.theme, rowHeight, list_));
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(list_, &QListView::doubleClicked, this, [this] { choose(); });
}

QWidget* ApplicationChooser::makeFoot()
{
    auto* const foot = new QFrame;
    foot->setObjectName("foot");
    foot->setMinimumHeight(footHeight);
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins(margin, 0, margin, 0);
    layout->setSpacing(gap);
    auto* const pick = makeButton(
        context_.theme, ButtonRole::plain, context_.text<"chooser.pickWindow">(),
        [this] { pickWindow(); }, Glyph::target);
    pick->setToolTip(context_.text<"chooser.pickWindow.help">());
    pick->setAccessibleDescription(pick->toolTip());
    layout->addWidget(pick);
    layout->addStretch();
    layout->addWidget(makeButton(
        context_.theme, ButtonRole::plain, context_.text<"shared.cancel">(), [this] { reject(); }));
    choose_ = makeButton(context_.theme, ButtonRole::defaultAction,
        context_.text<"chooser.choose">(), [this] { choose(); });
    layout->addWidget(choose_);
    return foot;
}

void ApplicationChooser::search(const QString& query)
{
    model_->show(matchingChoices(choices_, query.toStdString()));
    const bool hasAny = model_->rowCount({}) > 0;
    middle_->setCurrentIndex(hasAny ? 0 : 1);
    choose_->setEnabled(hasAny);
    if (hasAny)
        list_->setCurrentIndex(model_->index(0));
}

void ApplicationChooser::choose()
{
    const auto current = list_->currentIndex();
    if (!current.isValid())
        return;
    const auto path = model_->at(current.row()).path;
    accept();
    chosen_(path);
}

void ApplicationChooser::pickWindow()
{
    hide();
    picking_ = pick_([this](const auto& bundle) { notePicked(bundle); });
}

void ApplicationChooser::notePicked(const std::optional<std::filesystem::path>& bundle)
{
    picking_.reset();
    if (!bundle)
        return open();
    // It is hidden, and so would not notice that it is closed.
    deleteLater();
    chosen_(*bundle);
}

} // namespace brindlex
