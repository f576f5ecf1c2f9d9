#pragma once

#include "inputmethod/TextInputSource.h"
#include "platform/KeyboardInputSources.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// Lists, reads and selects keyboard input sources, leaving out the system's palettes that report
/// themselves as such. Main thread only.
class TextInputSourceService {
public:
    explicit TextInputSourceService(KeyboardInputSources& sources);

    /// Whether the source is a palette of the system: never listed, never reported as current and
    /// never selected.
    static bool isExcluded(std::string_view id);

    /// The record of a source; nothing without an identifier, for an excluded source, and for one
    /// of another category than keyboards.
    static std::optional<TextInputSource> textInputSource(const InputSourceProperties& source);

    /// The selected source, where it has a record.
    std::optional<TextInputSource> current() const;

    /// The sources that a user can select, in the system's order.
    std::vector<TextInputSource> availableSources() const;

    /// Selects the source; false when it is excluded, not available, or refused twice.
    bool selectInputSource(const std::string& id) const;

private:
    KeyboardInputSources& sources_;
};

} // namespace brindlex
