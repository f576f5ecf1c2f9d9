#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct sd_bus;
struct sd_bus_message;

namespace brindlex {

/// A reply to a call over a message bus; read from front to back.
class BusReply {
public:
    explicit BusReply(sd_bus_message* message);
    ~BusReply();
    BusReply(BusReply&& other) noexcept;
    BusReply& operator=(BusReply&&) = delete;

    /// Whether the call succeeded.
    explicit operator bool() const { return message_ != nullptr; }

    /// Goes into the container at hand, such as `v` or `(`, whatever it holds.
    void enter();
    /// Passes over the value at hand.
    void skip();
    /// The text at hand; empty when there is none.
    std::string text();
    bool boolean();
    /// The path of an object at hand; empty when there is none.
    std::string path();
    std::int32_t number();
    /// The list of texts at hand.
    std::vector<std::string> texts();
    /// The list of numbers without a sign at hand.
    std::vector<std::uint32_t> numbers();
    /// Whether nothing is left in the container at hand.
    bool isAtEnd();
    /// Goes out of the container at hand.
    void leave();

private:
    sd_bus_message* message_;
};

/// A test's own connection to a message bus, as another program of the desktop would have one.
class BusConnection {
public:
    /// Connects to the session bus, or to the bus at an address.
    BusConnection();
    explicit BusConnection(const std::string& address);
    ~BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    bool isOpen() const;
    bool hasOwner(const std::string& name) const;
    /// The process that owns the name; nothing when nobody does.
    std::optional<int> processOf(const std::string& name) const;

    using Argument = std::variant<std::string, std::uint32_t>;

    /// Calls an operation; an owner is never started for it.
    BusReply call(const std::string& service, const std::string& path, const std::string& interface,
        const std::string& operation, const std::vector<Argument>& arguments = {}) const;

    /// Reads a property; the reply stands before its value.
    BusReply property(const std::string& service, const std::string& path,
        const std::string& interface, const std::string& name) const;

    /// Sends a signal whose arguments are all texts.
    void emit(const std::string& path, const std::string& interface, const std::string& signal,
        const std::vector<std::string>& arguments) const;

private:
    sd_bus* bus_ = nullptr;
};

} // namespace brindlex
