#include "platform/linux/panels/QtWindowChooser.h"

#include "log/Log.h"
#include "platform/linux/panels/ActiveScreen.h"
#include "platform/linux/panels/RoundedRegion.h"
#include "platform/linux/panels/WindowChoice.h"
#include "platform/linux/panels/WindowChooserView.h"
#include "platform/linux/panels/X11InputHold.h"
#include "platform/linux/windows/WindowsServer.h"

#include <QCursor>
#include <QExposeEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QTimer>
#include <QWheelEvent>
#include <optional>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto betweenAttempts = 20ms;
constexpr int mostAttempts = 50;
/// What a notch of the wheel counts, in the eighths of a degree in which it comes.
constexpr int notch = 120;
constexpr int rowsPerNotch = 3;
/// From how many pixels on the pointer was moved, rather than touched.
constexpr double leastMotion = 10;

std::vector<WindowLabel> labelsOf(const std::vector<OpenWindow>& windows)
{
    std::vector<WindowLabel> labels;
    labels.reserve(windows.size());
    for (const auto& window : windows)
        labels.push_back(labelOf(window));
    return labels;
}

/// Says that the window is a menu, which has the pointer and the keys to itself as no other does.
void callMenu(X11Connection& connection, xcb_connection_t* server, xcb_window_t window)
{
    const auto type = connection.atom("_NET_WM_WINDOW_TYPE_POPUP_MENU");
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window,
        connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
}

} // namespace

class QtWindowChooser::Window : public QRasterWindow {
public:
    Window(QtWindowChooser& owner, const std::vector<OpenWindow>& windows, std::size_t chosen,
        QScreen& screen)
        : owner_(owner), windows_(windows), view_(labelsOf(windows), screen.size()),
          choice_(windows.size(), view_.seen(), chosen)
    {
        setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
            | Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
        setScreen(&screen);
        QRect area({0, 0}, view_.size());
        area.moveCenter(screen.availableGeometry().center());
        setGeometry(area);
        setMask(roundedRegion(area.size(), WindowChooserView::cornerRadius));
        create();
        callMenu(owner_.connection_, windowsServer(), static_cast<xcb_window_t>(winId()));
        attempts_.setInterval(betweenAttempts);
        QObject::connect(&attempts_, &QTimer::timeout, this, [this] { attempt(); });
        attempts_.start();
        attempt();
    }

    /// Leaves the screen, and the input to the others.
    void leave()
    {
        attempts_.stop();
        hasInput_ = false;
        owner_.watchdog_.rest();
        setMouseGrabEnabled(false);
        setKeyboardGrabEnabled(false);
        hold_.reset();
        hide();
        waitForWindowsServer();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        view_.paint(painter, choice_);
    }

    void exposeEvent(QExposeEvent* event) override
    {
        QRasterWindow::exposeEvent(event);
        if (isExposed() && !hasInput_) {
            attempt();
        } else if (!isExposed() && hasInput_) {
            Log::warn(
                "Mission Control: the list of windows was closed, as the program did not reply",
                logCategory::mouse);
            owner_.close();
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (!event->isAutoRepeat())
            pressed_ = event->key();
        switch (event->key()) {
        case Qt::Key_Down:
        case Qt::Key_Tab:
            choice_.step(1);
            break;
        case Qt::Key_Up:
        case Qt::Key_Backtab:
            choice_.step(-1);
            break;
        case Qt::Key_PageDown:
            choice_.page(1);
            break;
        case Qt::Key_PageUp:
            choice_.page(-1);
            break;
        case Qt::Key_Home:
            choice_.toFirst();
            break;
        case Qt::Key_End:
            choice_.toLast();
            break;
        default:
            return;
        }
        update();
    }

    // What closes the list does so when it is let go, as the release would reach a program that
    // got no press.
    void keyReleaseEvent(QKeyEvent* event) override
    {
        if (event->isAutoRepeat() || event->key() != std::exchange(pressed_, 0))
            return;
        if (event->key() == Qt::Key_Escape)
            owner_.close();
        else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            owner_.choose(windows_[choice_.chosen()].window);
    }

    // A pointer that rests where the list happens to come has chosen nothing, nor has a hand that
    // is just letting go of a button.
    void mouseMoveEvent(QMouseEvent* event) override
    {
        const auto place = event->globalPosition();
        isPointerAtRest_
            = isPointerAtRest_ && (place - pointerAtFirst_).manhattanLength() < leastMotion;
        if (!isPointerAtRest_)
            chooseAt(event->position());
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        pressedButton_ = event->button();
        pressedOutside_ = !QRectF({0, 0}, QSizeF(size())).contains(event->position());
        chooseAt(event->position());
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() != std::exchange(pressedButton_, Qt::NoButton))
            return;
        const auto row = view_.rowAt(event->position(), choice_);
        if (pressedOutside_)
            owner_.close();
        else if (event->button() == Qt::LeftButton && row)
            owner_.choose(windows_[*row].window);
    }

    void wheelEvent(QWheelEvent* event) override
    {
        turned_ -= event->angleDelta().y() * rowsPerNotch;
        choice_.scroll(turned_ / notch);
        turned_ %= notch;
        chooseAt(event->position());
        update();
    }

private:
    void chooseAt(const QPointF& point)
    {
        const auto row = view_.rowAt(point, choice_);
        if (!row || *row == choice_.chosen())
            return;
        choice_.choose(*row);
        update();
    }

    /// Other programs may have the pointer or the keys for a moment, as while a button is held.
    /// Nothing is seen before both are there: what keeps them may be a locker.
    void attempt()
    {
        if (!isVisible())
            showOnceHeld();
        else if (isExposed())
            takeOver();
        if (hasInput_)
            return attempts_.stop();
        if (++made_ < mostAttempts)
            return;
        Log::warn("Mission Control: another program keeps the pointer or the keyboard; the list "
                  "of windows was closed",
            logCategory::mouse);
        owner_.close();
    }

    void showOnceHeld()
    {
        // Before anything is taken: the program may hang at any moment.
        owner_.watchdog_.watchOpen(hold_->window());
        if (!hold_->take())
            return;
        QRasterWindow::show();
        raise();
    }

    /// The window itself has the input from now on.
    void takeOver()
    {
        const bool hasKeys = setKeyboardGrabEnabled(true);
        hold_.reset();
        hasInput_ = hasKeys && setMouseGrabEnabled(true);
        if (hasInput_)
            owner_.watchdog_.watchOpen(static_cast<std::uint32_t>(winId()));
    }

    QtWindowChooser& owner_;
    std::optional<X11InputHold> hold_{windowsServer()};
    std::vector<OpenWindow> windows_;
    WindowChooserView view_;
    WindowChoice choice_;
    QTimer attempts_;
    int made_ = 0;
    bool hasInput_ = false;
    int pressed_ = 0;
    Qt::MouseButton pressedButton_ = Qt::NoButton;
    bool pressedOutside_ = false;
    QPointF pointerAtFirst_ = QCursor::pos();
    bool isPointerAtRest_ = true;
    int turned_ = 0;
};

QtWindowChooser::QtWindowChooser(X11Connection& connection, Choice choice)
    : connection_(connection), choice_(std::move(choice))
{
}

QtWindowChooser::~QtWindowChooser() = default;

void QtWindowChooser::show(const std::vector<OpenWindow>& windows, std::size_t chosen)
{
    close();
    if (auto* screen = activeScreen(connection_))
        window_ = std::make_unique<Window>(*this, windows, chosen, *screen);
}

void QtWindowChooser::close()
{
    if (!window_)
        return;
    window_->leave();
    // What closes it may be an event that it is just handling.
    window_.release()->deleteLater();
}

void QtWindowChooser::choose(std::uint32_t window)
{
    close();
    choice_(window);
}

} // namespace brindlex
