#include "platform/linux/panels/QtProgramActivation.h"

#include <QGuiApplication>

#include <utility>

namespace brindlex {

QtProgramActivation::QtProgramActivation()
{
    QObject::connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, &context_, [this](auto state) {
            const bool isActive = state == Qt::ApplicationActive;
            if (std::exchange(wasActive_, isActive) && !isActive)
                resignObservers_.notify();
            else if (isActive)
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

Subscription QtProgramActivation::observeDidResignActive(std::function<void()> handler)
{
    return resignObservers_.add(std::move(handler));
}

} // namespace brindlex
