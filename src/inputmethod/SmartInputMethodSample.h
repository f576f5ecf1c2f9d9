#pragma once

#include "foundation/Date.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"

#include <string>

namespace brindlex {

/// One observed choice: the user changed to an input source by hand.
struct SmartInputMethodSample {
    Uuid id{};
    std::string inputSourceID{};
    Date recordedAt{};

    bool operator==(const SmartInputMethodSample&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            orComputed("id", &SmartInputMethodSample::id, &Uuid::random),
            orDefault("inputSourceID", &SmartInputMethodSample::inputSourceID),
            orComputed("recordedAt", &SmartInputMethodSample::recordedAt, &timeOfReading),
        };
    }

private:
    static Date timeOfReading();
};

} // namespace brindlex
