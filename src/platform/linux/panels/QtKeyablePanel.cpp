#include "platform/linux/panels/QtKeyablePanel.h"

#include "log/Log.h"
#include "platform/linux/panels/KeyboardGrab.h"
#include "platform/linux/panels/RoundedRegion.h"
#include "platform/linux/windows/WindowsServer.h"
#include "platform/linux/x11/X11Compositor.h"

#include <QEvent>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace brindlex {
namespace {

constexpr int fadeMilliseconds = 110;

QRect inPixels(const Rect& rect)
{
    return QRectF(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height).toRect();
}

} // namespace

class QtKeyablePanel::Window : public QWidget {
public:
    explicit Window(QtKeyablePanel& owner) : owner_(owner)
    {
        setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
            | Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
        setAttribute(Qt::WA_ShowWithoutActivating);
        auto* const layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        makeNative();
        QObject::connect(&fade_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { showAlpha(value.toDouble()); });
    }

    QSize host(std::unique_ptr<QWidget> view)
    {
        view_ = std::move(view);
        isDrawn_ = false;
        layout()->addWidget(view_.get());
        view_->show();
        view_->setFocus();
        view_->adjustSize();
        return view_->size();
    }

    void empty() { view_.reset(); }

    double alpha() const { return alpha_; }

    void setAlpha(double alpha)
    {
        fade_.stop();
        showAlpha(alpha);
    }

    const Rect& frame() const { return frame_; }

    void setFrame(const Rect& frame)
    {
        frame_ = frame;
        setGeometry(inPixels(frame));
        cutOut();
    }

    bool isOrderedIn() const { return isOrderedIn_; }

    /// A panel that nobody is to see needs no place among the windows.
    void orderFront()
    {
        isOrderedIn_ = true;
        owner_.presses_.listen();
        if (alpha_ > 0)
            putOnScreen();
    }

    void makeKey()
    {
        orderFront();
        putOnScreen();
        grab_.take(*windowHandle());
    }

    void orderOut()
    {
        if (!std::exchange(isOrderedIn_, false))
            return;
        fade_.stop();
        owner_.presses_.stop();
        grab_.giveBack();
        hide();
        waitForWindowsServer();
    }

    void display()
    {
        if (windowHandle()->isExposed())
            return repaint();
        // What costs most is done by drawing it once, wherever to.
        if (view_ && !std::exchange(isDrawn_, true))
            view_->grab();
    }

    void fadeIn()
    {
        if (!hasCompositor(owner_.connection_))
            return setAlpha(1);
        fade_.stop();
        fade_.setStartValue(alpha_);
        fade_.setEndValue(1.0);
        fade_.setDuration(fadeMilliseconds);
        fade_.start();
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        const bool mayHaveGone
            = event->type() == QEvent::Expose && grab_.isTaken() && !windowHandle()->isExposed();
        if (object == windowHandle() && mayHaveGone && !isOnServersScreen()) {
            wasTakenAway_ = true;
            resignKey("the program did not reply");
        }
        return QWidget::eventFilter(object, event);
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::ActivationChange && grab_.isTaken() && wasActive_
            && !isActiveWindow())
            resignKey({});
        wasActive_ = isActiveWindow();
    }

private:
    void makeNative()
    {
        winId();
        windowHandle()->installEventFilter(this);
    }

    void putOnScreen()
    {
        if (!isVisible() && std::exchange(wasTakenAway_, false)) {
            destroy();
            makeNative();
        }
        show();
        raise();
    }

    void showAlpha(double alpha)
    {
        const bool wasSeen = alpha_ > 0;
        alpha_ = alpha;
        setWindowOpacity(alpha);
        if (wasSeen != (alpha > 0))
            cutOut();
        if (isOrderedIn_ && alpha > 0 && !isVisible())
            putOnScreen();
    }

    /// The shape of the window: none where nobody is to see it, so that no click meets it.
    void cutOut()
    {
        setMask(alpha_ > 0 ? roundedRegion(size(), panelCornerRadius) : QRegion(-1, -1, 1, 1));
    }

    /// What the window library has been told may be about an earlier showing.
    bool isOnServersScreen() const
    {
        auto* const server = windowsServer();
        const X11Message<xcb_get_window_attributes_reply_t> reply(
            xcb_get_window_attributes_reply(server,
                xcb_get_window_attributes(server, static_cast<xcb_window_t>(winId())), nullptr));
        return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    /// For a reason that is worth a line, if there is one.
    void resignKey(const std::string& reason)
    {
        grab_.giveBack();
        if (!reason.empty())
            Log::warn("The panel was closed: " + reason, logCategory::clipboard);
        owner_.resignObservers_.notify();
    }

    QtKeyablePanel& owner_;
    std::unique_ptr<QWidget> view_;
    bool isDrawn_ = false;
    Rect frame_;
    double alpha_ = 1;
    QVariantAnimation fade_;
    KeyboardGrab grab_{[this] { resignKey("another program keeps the keyboard"); }};
    bool isOrderedIn_ = false;
    bool wasActive_ = false;
    /// Such a window has the focus for the library for ever, so that another one takes its place.
    bool wasTakenAway_ = false;
};

QtKeyablePanel::QtKeyablePanel(X11Connection& connection)
    : connection_(connection), presses_(connection, [this] { pressObservers_.notify(); })
{
}

QtKeyablePanel::~QtKeyablePanel()
{
    if (window_)
        window_->orderOut();
}

QtKeyablePanel::Window& QtKeyablePanel::window()
{
    if (!window_)
        window_ = std::make_unique<Window>(*this);
    return *window_;
}

Size QtKeyablePanel::host(std::unique_ptr<QWidget> view)
{
    const auto size = window().host(std::move(view));
    return {static_cast<double>(size.width()), static_cast<double>(size.height())};
}

void QtKeyablePanel::empty()
{
    orderOut();
    if (window_)
        window_->empty();
}

bool QtKeyablePanel::isVisible() const { return window_ && window_->isOrderedIn(); }

double QtKeyablePanel::alpha() const { return window_ ? window_->alpha() : 1; }

void QtKeyablePanel::setAlpha(double alpha) { window().setAlpha(alpha); }

Rect QtKeyablePanel::frame() const { return window_ ? window_->frame() : Rect{}; }

void QtKeyablePanel::setFrame(const Rect& frame) { window().setFrame(frame); }

void QtKeyablePanel::orderFront() { window().orderFront(); }

void QtKeyablePanel::makeKeyAndOrderFront() { window().makeKey(); }

void QtKeyablePanel::orderOut()
{
    if (window_)
        window_->orderOut();
}

void QtKeyablePanel::displayIfNeeded() { window().display(); }

void QtKeyablePanel::fadeIn() { window().fadeIn(); }

Subscription QtKeyablePanel::observeDidResignKey(Handler handler)
{
    return resignObservers_.add(std::move(handler));
}

Subscription QtKeyablePanel::observePressOutside(Handler handler)
{
    return pressObservers_.add(std::move(handler));
}

} // namespace brindlex
