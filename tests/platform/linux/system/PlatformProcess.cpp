// A process that a test starts: another instance of the program, as far as the platform sees it.

#include "platform/linux/preferences/JsonFileUserDefaults.h"
#include "platform/linux/system/DBusNotifications.h"
#include "platform/linux/system/DBusProgramInstances.h"
#include "platform/linux/system/PosixProgramRelaunching.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/linux/system/UnixSignals.h"
#include "platform/posix/SerialQueue.h"

#include <QCoreApplication>

#include <chrono>
#include <iostream>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Arguments = std::vector<std::string>;

/// Prints the processes that it finds and stays.
int instances(const Arguments& arguments)
{
    SessionBus bus(arguments.at(0));
    DBusProgramInstances instances(bus, arguments.at(1), [](auto) {});
    for (const auto process : instances.running(arguments.at(2)))
        std::cout << static_cast<std::int64_t>(process) << " ";
    std::cout << std::endl;
    return QCoreApplication::exec();
}

/// Asks to end before the loop runs.
int terminate(const Arguments& arguments)
{
    SessionBus bus(arguments.at(0));
    DBusProgramInstances instances(bus, arguments.at(1), [](auto) {});
    instances.terminate();
    std::cout << "still here" << std::endl;
    return QCoreApplication::exec();
}

/// Posts and ends at once, without a loop.
int post(const Arguments& arguments)
{
    SessionBus bus(arguments.at(0));
    DBusNotifications(bus).post(arguments.at(1), arguments.at(2));
    std::_Exit(0);
}

/// Sets the key to the numbers from 1 on and prints each, until the given number or forever.
int count(const Arguments& arguments)
{
    QtMainThread mainThread;
    SerialQueue queue("preferences");
    JsonFileUserDefaults defaults(arguments.at(0), mainThread, queue);
    const std::int64_t last = std::stoll(arguments.at(2));
    std::int64_t number = 0;
    const auto counting = mainThread.every(0.001, [&] {
        defaults.set(arguments.at(1), ++number);
        defaults.set("padding", std::string(100'000, char('a' + number % 26)));
        if (number == 1)
            std::cout << "counting" << std::endl;
        if (number == last)
            QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}

/// Starts the program in its place and ends.
int relaunch(const Arguments& arguments)
{
    int status = 1;
    PosixProgramRelaunching(arguments.at(0), [] {
        return std::string();
    }).relaunch([&](const Result<Done, std::string>& result) { status = result ? 0 : 1; });
    return status;
}

/// Prints each signal that asks it to end; ends at the first, or never when told to be stubborn.
/// The patience is in milliseconds.
int signals(const Arguments& arguments)
{
    const auto handler = [&](int signal) {
        std::cout << signal << std::endl;
        if (arguments.at(0) != "stubborn")
            QCoreApplication::exit(3);
    };
    const UnixSignals signals(handler, std::chrono::milliseconds(std::stoi(arguments.at(1))));
    std::cout << "ready" << std::endl;
    return QCoreApplication::exec();
}

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    const std::string task = arguments[1];
    const brindlex::Arguments rest(arguments + 2, arguments + count);
    if (task == "instances")
        return brindlex::instances(rest);
    if (task == "terminate")
        return brindlex::terminate(rest);
    if (task == "post")
        return brindlex::post(rest);
    if (task == "count")
        return brindlex::count(rest);
    if (task == "relaunch")
        return brindlex::relaunch(rest);
    if (task == "signals")
        return brindlex::signals(rest);
    return 2;
}
