#pragma once

#include <functional>
#include <string>
#include <systemd/sd-bus.h>

namespace brindlex {

/// A program's place on the accessibility bus of the desktop, for programs that tests start.
class AccessibleProgram {
public:
    AccessibleProgram();
    ~AccessibleProgram();
    AccessibleProgram(const AccessibleProgram&) = delete;
    AccessibleProgram& operator=(const AccessibleProgram&) = delete;

    bool isConnected() const { return !service_.empty(); }

    /// Adds a reference to an object of the program, such as "root", or one to none at all.
    void append(sd_bus_message* reply, const std::string& object) const;
    static void appendNone(sd_bus_message* reply);

    /// Replies to a question about an object of the program: sends what it wants to and returns
    /// what the functions of the bus do, positive for a question that needs no other reply.
    using MethodHandler = std::function<int(sd_bus_message* question, const std::string& object)>;

    /// Replies with what `fill` adds, or that there is no such question when it returns false.
    static int reply(
        sd_bus_message* question, const std::function<bool(sd_bus_message* reply)>& fill);

    /// Says that the program is there, to the bus and by a file `ready` in the folder, and has
    /// questions replied to as long as the bus lasts; the code for `exit`.
    int run(const std::string& folder, MethodHandler handler) const;

private:
    sd_bus* bus_ = nullptr;
    std::string service_;
};

/// The main function of a program whose one argument is the folder that it shares with the test.
/// `Program` is made of the bus and that folder and responds to questions with its operation
/// `reply`; the code for `exit`.
template <typename Program>
int runAccessibleProgram(int count, char** arguments)
{
    if (count != 2)
        return 4;
    const AccessibleProgram bus;
    if (!bus.isConnected())
        return 1;
    Program program{.bus = bus, .folder = arguments[1]};
    return bus.run(program.folder, [&](sd_bus_message* question, const std::string& object) {
        return program.reply(question, object);
    });
}

} // namespace brindlex
