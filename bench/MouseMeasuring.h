#pragma once

#include "Distribution.h"
#include "desktop/MouseDesk.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace brindlex {

double milliseconds(std::chrono::steady_clock::duration time);

/// The columns of a table of distributions, and a row of it.
void printHeading(const char* heading);
void print(const std::string& what, const Distribution& all, const std::string& remark = {});

/// Ends the program, and says what it found wrong, as that explains a figure.
void endProgram(MouseDesk& desk);

/// Runs the measurement with the peer, if there is one.
void withPeer(const std::string& name,
    const std::function<std::unique_ptr<ChildProcess>()>& startPeer,
    const std::function<void(const ChildProcess&)>& measure);

/// All settings as they come, but a smooth wheel.
MouseConfig smoothWheel();

} // namespace brindlex
