#pragma once

#include "foundation/Subscribers.h"
#include "platform/ProgramActivation.h"

#include <QObject>

namespace brindlex {

/// The program is active while one of its windows has the focus. Made after the application object.
class QtProgramActivation : public ProgramActivation {
public:
    QtProgramActivation();

    bool isActive() const override;
    Subscription observeDidBecomeActive(std::function<void()> handler) override;
    Subscription observeDidResignActive(std::function<void()> handler) override;

private:
    QObject context_;
    bool wasActive_ = false;
    Subscribers<std::function<void()>> observers_;
    Subscribers<std::function<void()>> resignObservers_;
};

} // namespace brindlex
