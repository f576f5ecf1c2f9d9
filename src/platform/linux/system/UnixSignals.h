#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace brindlex {

/// Turns the signals that ask a process to end, SIGTERM, SIGINT and SIGHUP, into calls on the main
/// thread.
///
/// So is each that follows while the program ends. Only one that comes after the patience has its
/// usual effect, so that a program that does not get round to ending can be ended. A signal that
/// the process was started to ignore, as under nohup, stays ignored. The destructor puts back what
/// was in force. One at a time, made beside the application object.
class UnixSignals {
public:
    using Handler = std::function<void(int signal)>;

    explicit UnixSignals(
        Handler handler, std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~UnixSignals();
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;

private:
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace brindlex
