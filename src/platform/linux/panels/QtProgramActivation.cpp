#include "platform/linux/panels/QtProgramActivation.h"

#include <QGuiApplication>

#include <utility>

namespace brindlex {

QtProgramActivation::QtProgramActivation()
{
    QObject::connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, &context_, [this](auto state) {
            if (state == Qt::ApplicationActive)
                observers_.notify();
        });
}

bool QtProgramActivation::isActive() const
{
    return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

Subscription QtProgramActivation::observeDidBecomeActive(std::function<void()> handler)
{
    return observers_.add(std::move(handler));
}

} // namespace brindlex
