#include "platform/linux/programwindows/QtProgramWindows.h"

#include "platform/linux/bus/BusReachability.h"
#include "platform/linux/windows/X11WindowActivation.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>

#include <chrono>
#include <utility>

namespace brindlex {
namespace {

/// How long a window that is opened waits for the bus.
constexpr std::chrono::milliseconds busPatience{200};

} // namespace

/// A window from its opening to its closing.
class QtProgramWindows::OpenWindow : public QObject {
public:
    OpenWindow(QtProgramWindows& owner, const Scene& scene, ProgramWindow number)
        : owner_(owner), scene_(scene.id), number_(number), widget_(scene.make())
    {
        widget_->setWindowRole(QString::fromStdString(scene.identifier));
        if (!widget_->testAttribute(Qt::WA_Resized))
            widget_->resize(scene.size);
        widget_->installEventFilter(this);
    }
    ~OpenWindow() override { widget_->removeEventFilter(this); }

    const std::string& scene() const { return scene_; }
    QWidget& widget() { return *widget_; }

    /// A window that is hidden by itself, and not by the desktop, has been closed; one may refuse.
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            owner_.noteClosing(number_);
        return false;
    }

private:
    QtProgramWindows& owner_;
    const std::string scene_;
    const ProgramWindow number_;
    const std::unique_ptr<QWidget> widget_;
};

QtProgramWindows::QtProgramWindows(X11Connection& connection, std::string sessionBus)
    : connection_(connection), sessionBus_(std::move(sessionBus))
{
}

QtProgramWindows::~QtProgramWindows() = default;

Subscription QtProgramWindows::addScene(Scene scene)
{
    const auto id = scene.id;
    scenes_.insert_or_assign(id, std::move(scene));
    return Subscription([this, id, alive = lifetime_.watch()] {
        if (!alive.expired())
            removeScene(id);
    });
}

bool QtProgramWindows::hasScene(const std::string& scene) const { return scenes_.contains(scene); }

std::optional<ProgramWindow> QtProgramWindows::window(const std::string& scene) const
{
    for (const auto& [number, window] : windows_)
        if (window->scene() == scene)
            return number;
    return {};
}

void QtProgramWindows::open(const std::string& scene)
{
    const auto found = scenes_.find(scene);
    if (found == scenes_.end() || window(scene))
        return;
    offerToAssistiveTechnology();
    const ProgramWindow number{++opened_};
    auto& added = windows_[number];
    added = std::make_unique<OpenWindow>(*this, found->second, number);
    added->widget().show();
    didOpen_.notify(scene, number);
}

bool QtProgramWindows::bringForward(ProgramWindow window)
{
    auto* const widget = widgetOf(window);
    if (!widget)
        return false;
    if (widget->isMinimized())
        widget->setWindowState(widget->windowState() & ~Qt::WindowMinimized);
    activateWindow(connection_, static_cast<xcb_window_t>(widget->winId()));
    return isVisible(window) && widget->isActiveWindow();
}

bool QtProgramWindows::isVisible(ProgramWindow window) const
{
    const auto* const widget = widgetOf(window);
    return widget && widget->isVisible() && !widget->isMinimized();
}

Subscription QtProgramWindows::observeDidOpen(Handler handler)
{
    return didOpen_.add(std::move(handler));
}

Subscription QtProgramWindows::observeWillClose(Handler handler)
{
    return willClose_.add(std::move(handler));
}

QWidget* QtProgramWindows::widgetOf(ProgramWindow window) const
{
    const auto found = windows_.find(window);
    return found == windows_.end() ? nullptr : &found->second->widget();
}

/// The window library does this with its first loop, and waits for ever for a bus that says
/// nothing.
void QtProgramWindows::offerToAssistiveTechnology()
{
    if (isOffered_ || !isBusReplying(sessionBus_, busPatience))
        return;
    isOffered_ = true;
    QAccessible::setRootObject(qApp);
}

void QtProgramWindows::noteClosing(ProgramWindow window)
{
    const auto entry = windows_.extract(window);
    if (entry.empty())
        return;
    // It is just handling the event that closes it.
    auto* const closed = entry.mapped().release();
    closed->deleteLater();
    willClose_.notify(closed->scene(), window);
}

void QtProgramWindows::removeScene(const std::string& id)
{
    scenes_.erase(id);
    if (const auto present = window(id))
        windows_.erase(*present);
}

} // namespace brindlex
