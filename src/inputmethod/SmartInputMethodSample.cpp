#include "inputmethod/SmartInputMethodSample.h"

#include <chrono>

namespace brindlex {

Date SmartInputMethodSample::timeOfReading()
{
    const std::chrono::duration<double> time = std::chrono::system_clock::now().time_since_epoch();
    return Date::fromUnixTime(time.count());
}

} // namespace brindlex
