#include "fuzz/FuzzTarget.h"

#include "platform/linux/watchdog/Watchdog.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <sys/socket.h>
#include <unistd.h>

using namespace brindlex;

namespace {

/// What the watchdog has done on the X server, which is not there.
struct Rescues {
    int cuts = 0;
    int closings = 0;
    std::optional<std::uint32_t> tidied{};

    bool operator==(const Rescues&) const = default;
} rescues;

using Order = WatchdogMessage::Order;

/// What is to happen at the end of a program that has sent these orders.
struct ExpectedEnd {
    std::uint32_t window = 0;
    bool isOpenWindow = false;
    bool hasEnded = false;
    bool isDismissed = false;

    void read(std::string_view packet)
    {
        WatchdogMessage message;
        hasEnded |= packet.size() < sizeof message;
        if (hasEnded)
            return;
        std::memcpy(&message, packet.data(), sizeof message);
        isDismissed = message.order == Order::dismiss;
        hasEnded = isDismissed;
        if (message.order != Order::watch && message.order != Order::watchOpen)
            return;
        window = message.window;
        isOpenWindow = message.order == Order::watchOpen;
    }

    Rescues rescues() const
    {
        if (isDismissed || isOpenWindow)
            return {};
        return {.tidied = window};
    }
};

} // namespace

extern "C" int xcb_connection_has_error(xcb_connection_t*) { return 0; }
extern "C" int xcb_get_file_descriptor(xcb_connection_t*) { return -1; }

namespace brindlex {

InputRescue::InputRescue(const std::string&) : server_(nullptr) { }
InputRescue::~InputRescue() = default;
void InputRescue::listen(bool isListening) { isListening_ = isListening; }
bool InputRescue::takeInput() { return isListening_; }
void InputRescue::cut(std::uint32_t) { ++rescues.cuts; }
void InputRescue::close(std::uint32_t) { ++rescues.closings; }
void InputRescue::tidyAfter(std::uint32_t window) { rescues.tidied = window; }

} // namespace brindlex

/// The input is a row of packets, each one byte that says how long it is before its content. The
/// program has sent them all and has gone when the watchdog begins to read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    std::array<int, 2> ends{};
    require(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()) == 0, "there is a socket");
    ExpectedEnd expected;
    auto rest = textOf(bytes, size);
    while (!rest.empty()) {
        const auto packet = rest.substr(1, static_cast<std::uint8_t>(rest.front()) % 16);
        rest.remove_prefix(1 + packet.size());
        if (send(ends[0], packet.data(), packet.size(), MSG_DONTWAIT) < 0)
            break;
        expected.read(packet);
    }
    close(ends[0]);
    if (ends[1] != watchdogDescriptor) {
        dup2(ends[1], watchdogDescriptor);
        close(ends[1]);
    }

    rescues = {};
    require(Watchdog("").run() == 0, "the watchdog ends well");
    require(rescues == expected.rescues(), "it tidies up where it has to, and does nothing else");
    close(watchdogDescriptor);
    return 0;
}
