#include "support/hardware/PlayedHardware.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/hardware/InputDevices.h"

#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace brindlex {
namespace {

// The protocol of the X server's `inputtest` driver, version 1.0, of its header
// xf86-input-inputtest-protocol.h.

enum class MessageType : std::uint32_t {
    clientVersion,
    waitForSync,
    motion,
    proximity,
    button,
    key
};

struct Header {
    std::uint32_t length = 0;
    MessageType type{};
};

struct Version {
    Header header{sizeof(Version), MessageType::clientVersion};
    std::uint16_t major = 1;
    std::uint16_t minor = 0;
};

struct WaitForSync {
    Header header{sizeof(WaitForSync), MessageType::waitForSync};
};

struct Axes {
    std::uint32_t hasUnaccelerated = 0;
    std::array<std::uint8_t, 8> mask{};
    std::array<double, 64> values{};
    std::array<double, 64> unaccelerated{};
};

struct Motion {
    Header header{sizeof(Motion), MessageType::motion};
    std::uint32_t isAbsolute = 0;
    Axes axes{};
};

struct Button {
    Header header{sizeof(Button), MessageType::button};
    std::int32_t isAbsolute = 0;
    std::int32_t button = 0;
    std::uint32_t isPress = 0;
    Axes axes{};
};

struct Key {
    Header header{sizeof(Key), MessageType::key};
    std::int32_t keyCode = 0;
    std::uint32_t isPress = 0;
};

/// What one notch of the wheel is on the axes of the driver.
constexpr double notch = 120;
constexpr int firstMotionAxis = 0;
constexpr int firstWheelAxis = 2;

int connectTo(const std::string& path)
{
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof(address.sun_path))
        fatalError("The path of a socket is too long: " + path);
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    if (!eventually([&] {
            return connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0;
        }))
        fatalError("There is no hardware at " + path);
    return descriptor;
}

void readReply(int descriptor, std::size_t size)
{
    std::array<char, 16> reply{};
    if (recv(descriptor, reply.data(), size, MSG_WAITALL) != static_cast<ssize_t>(size))
        fatalError("The hardware does not reply");
}

} // namespace

PlayedDevice::PlayedDevice(const VirtualDesktop& desktop, const std::string& name)
    : name_(name), path_(desktop.hardwareSocket(name))
{
    connect();
}

void PlayedDevice::connect()
{
    socket_ = FileHandle(connectTo(path_));
    const Version version;
    send(&version, sizeof(version));
    readReply(socket_.descriptor(), sizeof(Version));
}

void PlayedDevice::send(const void* message, std::size_t size) const
{
    const auto sent = ::send(socket_.descriptor(), message, size, MSG_NOSIGNAL);
    if (sent != static_cast<ssize_t>(size))
        fatalError("The hardware " + name_ + " is gone: " + std::strerror(errno));
}

void PlayedDevice::pullOut()
{
    socket_.close();
    setDevicePresent(XConnection(), name_, false);
}

void PlayedDevice::plugIn()
{
    setDevicePresent(XConnection(), name_, true);
    connect();
}

void PlayedDevice::settle() const
{
    if (!socket_)
        return;
    const WaitForSync wait;
    send(&wait, sizeof(wait));
    readReply(socket_.descriptor(), sizeof(Header));
}

void PlayedMouse::click(int button) const
{
    press(button);
    release(button);
}

void PlayedMouse::move(double x, double y) const { moveAxes(firstMotionAxis, x, y); }

void PlayedMouse::turnWheel(double down, double right) const
{
    moveAxes(firstWheelAxis, right * notch, down * notch);
}

void PlayedMouse::play(int button, bool isPress) const
{
    Button message;
    message.button = button;
    message.isPress = isPress;
    send(&message, sizeof(message));
}

void PlayedMouse::moveAxes(int firstAxis, double x, double y) const
{
    Motion message;
    const std::array distances{x, y};
    for (std::size_t index = 0; index < distances.size(); ++index) {
        const auto axis = static_cast<std::size_t>(firstAxis) + index;
        if (distances[index] != 0)
            message.axes.mask[0] = static_cast<std::uint8_t>(message.axes.mask[0] | 1U << axis);
        message.axes.values[axis] = distances[index];
    }
    send(&message, sizeof(message));
}

void PlayedKeyboard::stroke(std::uint8_t key) const
{
    press(key);
    release(key);
}

void PlayedKeyboard::play(std::uint8_t key, bool isPress) const
{
    Key message;
    message.keyCode = key;
    message.isPress = isPress;
    send(&message, sizeof(message));
}

} // namespace brindlex
