#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Which engine IBus has selected, and which it is being asked for.
///
///     settled ──want──▶ wanted ──ask──▶ asking ──take──▶ settled
///                          ▲               │
///                          └─take, when another was wanted meanwhile─┘
///
/// The daemon is asked for one engine at a time: of two at once, the one whose engine has to be
/// started first would win. Each engine that it selects comes back as a signal, too, which may be
/// late: only the signal of the last one says anything.
class IBusSelection {
public:
    /// An engine that is wanted, and the layout group before.
    struct Wish {
        std::string engine{};
        int groupBefore = 0;

        bool operator==(const Wish&) const = default;
    };

    /// The engine that is wanted, else the one that is selected; nothing before any was.
    std::optional<std::string> engine() const;

    /// What the daemon says at the beginning.
    void begin(const std::string& engine) { selected_ = engine; }

    /// Wants an engine; whether the daemon is to be asked now.
    bool want(Wish wish);

    /// What the daemon is asked for from now on until `take`.
    Wish ask();

    /// Takes the daemon's answer; whether that settles it. If not, the daemon is to be asked again,
    /// as another engine was wanted meanwhile.
    bool take(bool isRefused);

    /// Takes the signal that an engine was selected, by whomever; whether it says something new.
    bool hear(const std::string& engine);

private:
    std::optional<std::string> selected_;
    std::optional<Wish> wanted_;
    std::optional<Wish> asked_;
    /// Engines that were asked for and whose signals are still to come.
    std::vector<std::string> echoes_;
};

} // namespace brindlex
