#include "platform/linux/tray/TrayStatusItem.h"

#include <QCursor>
#include <QToolTip>

#include <chrono>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

/// How long the pointer rests on the icon before its title is shown, as on other controls.
constexpr std::chrono::milliseconds restBeforeTitle{700};

constexpr int primaryButton = 1;
constexpr int menuButton = 3;

QString itemName() { return QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(::getpid()); }

} // namespace

struct TrayStatusItem::Shown {
    Shown(QDBusConnection bus, const std::string& id)
        : menu(bus), item(bus, QString::fromStdString(id), BusMenu::path())
    {
    }

    BusMenu menu;
    NotifierItem item;
    std::unique_ptr<NotifierRegistration> registration;
    std::unique_ptr<DockingTray> tray;
    /// For what is to be notified of from the loop.
    QObject context;
};

TrayStatusItem::TrayStatusItem(X11Connection& display, QDBusConnection bus, std::string id)
    : display_(display), bus_(std::move(bus)), id_(std::move(id))
{
    toolTip_.setSingleShot(true);
    toolTip_.setInterval(restBeforeTitle);
    QObject::connect(&toolTip_, &QTimer::timeout, &toolTip_, [this] { showTitle(); });
}

TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::show(const StatusItemContents& contents)
{
    contents_ = contents;
    const bool isNew = !shown_;
    if (isNew)
        shown_ = std::make_unique<Shown>(bus_, id_);
    shown_->menu.setEntries(contents.menu);
    shown_->item.setTitle(QString::fromStdString(contents.title));
    if (shown_->tray)
        shown_->tray->setTitle(contents.title);
    if (isNew)
        begin();
}

void TrayStatusItem::hide()
{
    menu_.close();
    hover(false);
    shown_.reset();
    update();
}

Subscription TrayStatusItem::observeActivation(std::function<void()> handler)
{
    return activations_.add(std::move(handler));
}

Subscription TrayStatusItem::observeChoice(std::function<void(int id)> handler)
{
    return choices_.add(std::move(handler));
}

void TrayStatusItem::begin()
{
    shown_->menu.onChoice = [this](int id) { later([this, id] { choose(id); }); };
    shown_->item.onActivate = [this] { later([this] { activate(); }); };
    shown_->item.onContextMenu = [this] { later([this] { openMenu(); }); };
    shown_->registration = std::make_unique<NotifierRegistration>(
        bus_, itemName(), [this](NotifierState) { later([this] { followNotifier(); }); });
    followNotifier();
}

/// While nobody has replied no other tray is looked for: the icon would be in both for a moment.
void TrayStatusItem::followNotifier()
{
    const auto state = shown_->registration->state();
    if (state == NotifierState::present)
        shown_->tray.reset();
    else if (state == NotifierState::absent && !shown_->tray)
        shown_->tray = std::make_unique<DockingTray>(display_, contents_.title,
            DockingTray::Handlers{[this](bool) { later([this] { update(); }); },
                [this](int button) { press(button); }, [this](bool isOver) { hover(isOver); }});
    update();
}

void TrayStatusItem::update()
{
    const bool isOnDesktop = shown_
        && (shown_->registration->state() == NotifierState::present
            || (shown_->tray && shown_->tray->isDocked()));
    if (isOnDesktop != isOnDesktop_.value())
        isOnDesktop_.set(isOnDesktop);
}

void TrayStatusItem::press(int button)
{
    hover(false);
    if (button == primaryButton)
        later([this] { activate(); });
    else if (button == menuButton)
        later([this] { openMenu(); });
}

void TrayStatusItem::hover(bool isOver)
{
    if (isOver)
        return toolTip_.start();
    toolTip_.stop();
    QToolTip::hideText();
}

void TrayStatusItem::showTitle() const
{
    QToolTip::showText(QCursor::pos(), QString::fromStdString(contents_.title));
}

void TrayStatusItem::openMenu()
{
    menu_.open(contents_.menu, [this](int id) { choose(id); });
}

void TrayStatusItem::activate() { activations_.notify(); }

void TrayStatusItem::choose(int id)
{
    if (canChoose(contents_.menu, id))
        choices_.notify(id);
}

/// From the loop, and not at all once the icon is hidden.
void TrayStatusItem::later(std::function<void()> work)
{
    QMetaObject::invokeMethod(&shown_->context, std::move(work), Qt::QueuedConnection);
}

} // namespace brindlex
