#include "platform/linux/panels/QtFilePreviewing.h"

#include "platform/linux/panels/RoundedRegion.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

namespace brindlex {
namespace {

/// Of the screen, so that one sees what is behind.
constexpr double mostShare = 0.8;

QScreen* screenWithPointer()
{
    auto* const screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? screen : QGuiApplication::primaryScreen();
}

std::unique_ptr<QWidget> makeWindow(std::unique_ptr<QWidget> view)
{
    auto window = std::make_unique<QWidget>();
    window->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
        | Qt::X11BypassWindowManagerHint | Qt::WindowTransparentForInput
        | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    auto* const layout = new QVBoxLayout(window.get());
    layout->setContentsMargins({});
    layout->addWidget(view.release());
    return window;
}

} // namespace

QtFilePreviewing::QtFilePreviewing() = default;

QtFilePreviewing::~QtFilePreviewing() = default;

void QtFilePreviewing::show(const Files& files)
{
    const auto* const screen = screenWithPointer();
    if (!view_ || !screen)
        return;
    const auto room = screen->availableGeometry();
    const auto most = QSizeF(room.size()) * mostShare;
    window_ = makeWindow(view_(files, most.toSize()));
    QRect area({0, 0}, window_->sizeHint().boundedTo(room.size()));
    area.moveCenter(room.center());
    window_->setGeometry(area);
    window_->setMask(roundedRegion(area.size(), panelCornerRadius));
    window_->show();
    window_->raise();
}

void QtFilePreviewing::close() { window_.reset(); }

} // namespace brindlex
