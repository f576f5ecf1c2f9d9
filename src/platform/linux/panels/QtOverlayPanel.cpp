#include "platform/linux/panels/QtOverlayPanel.h"

#include "platform/linux/panels/ActiveScreen.h"
#include "platform/linux/panels/PillHUDView.h"
#include "platform/linux/panels/RoundedRegion.h"
#include "platform/linux/x11/X11Compositor.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QVariantAnimation>
#include <array>
#include <cstdint>
#include <optional>

namespace brindlex {
namespace {

constexpr int fadeInMilliseconds = 120;
constexpr int fadeOutMilliseconds = 250;
/// Leaves a part of the screen at both sides of a long text.
constexpr double mostShareForText = 0.8;

} // namespace

class QtOverlayPanel::Window : public QRasterWindow {
public:
    explicit Window(X11Connection& connection) : connection_(connection)
    {
        setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
            | Qt::X11BypassWindowManagerHint | Qt::WindowTransparentForInput
            | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint);
        auto wanted = format();
        wanted.setAlphaBufferSize(8);
        setFormat(wanted);
        QObject::connect(&fade_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setOpacity(value.toDouble()); });
        QObject::connect(&fade_, &QVariantAnimation::finished, this, [this] {
            if (opacity() == 0)
                hide();
        });
    }

    void warmUp(const QString& text)
    {
        prepare();
        const PillHUDView sample(text, 1000);
        QImage surface(sample.fittingSize(), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&surface);
        sample.paint(painter, PillHUDView::Fill::translucent);
    }

    void present(const QString& text)
    {
        auto* screen = activeScreen(connection_);
        if (!screen)
            return;
        prepare();
        fade_.stop();
        const auto space = screen->availableGeometry();
        view_.emplace(text, static_cast<int>(space.width() * mostShareForText));
        fill_ = hasCompositor(connection_) ? PillHUDView::Fill::translucent
                                           : PillHUDView::Fill::opaque;

        // Nobody sees the title; it is for programs that ask what a window says.
        setTitle(text);
        setScreen(screen);
        QRect area({0, 0}, view_->fittingSize());
        area.moveCenter(space.center());
        setGeometry(area);
        const bool fades = fill_ == PillHUDView::Fill::translucent;
        setMask(fades ? QRegion() : roundedRegion(area.size(), PillHUDView::cornerRadius));
        setOpacity(fades ? 0 : 1);
        QRasterWindow::show();
        raise();
        update();
        if (fades)
            fadeTo(1, fadeInMilliseconds);
    }

    void dismiss()
    {
        if (!isVisible())
            return;
        if (fill_ == PillHUDView::Fill::translucent)
            fadeTo(0, fadeOutMilliseconds);
        else
            hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!view_)
            return;
        QPainter painter(this);
        view_->paint(painter, fill_);
    }

private:
    /// Makes the native window and shows compositors what kind it is, so that none adds a shadow.
    void prepare()
    {
        if (handle())
            return;
        create();
        const auto native = static_cast<xcb_window_t>(winId());
        const auto type = connection_.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION");
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, native,
            connection_.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
        constexpr std::array<std::uint32_t, 4> noMargins{};
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, native,
            connection_.atom("_GTK_FRAME_EXTENTS"), XCB_ATOM_CARDINAL, 32, noMargins.size(),
            noMargins.data());
        xcb_flush(connection_.get());
    }

    void fadeTo(double target, int milliseconds)
    {
        fade_.stop();
        fade_.setStartValue(opacity());
        fade_.setEndValue(target);
        fade_.setDuration(milliseconds);
        fade_.start();
    }

    X11Connection& connection_;
    std::optional<PillHUDView> view_;
    PillHUDView::Fill fill_ = PillHUDView::Fill::opaque;
    QVariantAnimation fade_;
};

QtOverlayPanel::QtOverlayPanel(X11Connection& connection) : connection_(connection) { }

QtOverlayPanel::~QtOverlayPanel() = default;

QtOverlayPanel::Window& QtOverlayPanel::window()
{
    if (!window_)
        window_ = std::make_unique<Window>(connection_);
    return *window_;
}

void QtOverlayPanel::warmUp(const std::string& text)
{
    window().warmUp(QString::fromStdString(text));
}

void QtOverlayPanel::show(const std::string& text)
{
    window().present(QString::fromStdString(text));
}

void QtOverlayPanel::fadeOut()
{
    if (window_)
        window_->dismiss();
}

} // namespace brindlex
