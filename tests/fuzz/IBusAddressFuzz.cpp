#include "fuzz/FuzzTarget.h"

#include "platform/linux/inputsources/IBusAddress.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto address = parseIBusAddress(textOf(bytes, size));
    if (!address)
        return 0;
    require(!address->address.empty(), "an address is not empty");
    const auto text = "# made by a daemon\nIBUS_ADDRESS=" + address->address
        + "\nIBUS_DAEMON_PID=" + std::to_string(address->processIdentifier) + "\n";
    require(parseIBusAddress(text) == address, "an address is read as written");
    return 0;
}
