#pragma once

#include <QVariant>

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What IBus publishes of one of its engines.
struct IBusEngine {
    std::string name{};
    std::string longName{};
    /// The X layout that its keys are to be read with; "default" for whichever there is.
    std::string layout{};
    std::string variant{};
    /// The catalogue with translations of the names.
    std::string catalogue{};

    bool operator==(const IBusEngine&) const = default;
};

/// Reads a serialized description of an engine; nothing when the value is not one.
std::optional<IBusEngine> ibusEngine(const QVariant& value);

/// Reads an array of descriptions, without what in it is not one.
std::vector<IBusEngine> ibusEngines(const QVariant& array);

} // namespace brindlex
