#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Which engine IBus has selected, and which one is requested.
///
///     settled ──request──▶ requested ──beginCall──▶ calling ──endCall──▶ settled
///                              ▲                       │
///                              └───────────────────────┘ another was requested meanwhile
///
/// One call to the daemon is under way at a time: of two at once, the one whose engine has to be
/// started first would win. Each engine that it selects comes back as a signal, too, which may be
/// late: only the signal of the last one counts. A call that was refused, or given up because the
/// daemon hangs, may be carried out all the same: the signal of that is nobody's choice.
class IBusSelection {
public:
    /// An engine that is to be selected, and the layout group before.
    struct Request {
        std::string engine{};
        int groupBefore = 0;

        bool operator==(const Request&) const = default;
    };

    /// What the signal that an engine was selected stands for.
    enum class Signal { echo, choice, late };

    /// The engine that is requested, else the one that is selected; nothing before any was.
    std::optional<std::string> engine() const;

    /// What is selected at the beginning.
    void start(const std::string& engine) { selected_ = engine; }

    /// Requests an engine; whether the daemon is to be called now.
    bool request(Request request);

    /// What the daemon is called for from now on until `endCall`.
    Request beginCall();

    /// Takes the daemon's reply; whether that settles it. If not, the daemon is to be called again,
    /// as another engine was requested meanwhile.
    bool endCall(bool isRefused);

    /// Takes the signal that an engine was selected, by whomever. That of an echo does not count.
    Signal follow(const std::string& engine);

private:
    std::optional<std::string> selected_;
    std::optional<Request> requested_;
    std::optional<Request> called_;
    /// Engines that the daemon was called for and whose signals are still to come.
    std::vector<std::string> echoes_;
    /// The engine of the last refusal, until the next signal that counts.
    std::optional<std::string> refused_;
};

} // namespace brindlex
