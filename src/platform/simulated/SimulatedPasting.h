#pragma once

#include "platform/EventPosting.h"
#include "platform/PasteKeystroke.h"
#include "platform/Pasting.h"
#include "platform/VirtualKey.h"

namespace brindlex {

/// Pastes with Command and the key V, as applications of a simulated computer do.
class SimulatedPasting final : public Pasting {
public:
    explicit SimulatedPasting(EventPosting& posting) : posting_(posting) { }

    void postPaste() override
    {
        for (const auto& event : pasteKeystroke(virtualKey::v, eventFlag::command))
            posting_.post(event);
    }

private:
    EventPosting& posting_;
};

} // namespace brindlex
