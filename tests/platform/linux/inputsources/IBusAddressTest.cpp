#include "platform/linux/inputsources/IBusAddress.h"

#include "support/basics/ScopedEnvironment.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

TEST(IBusAddress, isReadFromTheDaemonsFile)
{
    EXPECT_EQ(parseIBusAddress("# comment\nIBUS_ADDRESS=unix:path=/run/x,guid=1\n"
                               "IBUS_DAEMON_PID=42\n"),
        (IBusAddress{"unix:path=/run/x,guid=1", 42}));
    EXPECT_EQ(parseIBusAddress("IBUS_ADDRESS=unix:path=/run/x\nIBUS_DAEMON_PID=many"),
        (IBusAddress{"unix:path=/run/x", 0}));
    EXPECT_EQ(parseIBusAddress("IBUS_DAEMON_PID=42\n"), std::nullopt);
    EXPECT_EQ(parseIBusAddress(""), std::nullopt);
}

TEST(IBusAddress, standsInAFileNamedAfterMachineAndDisplay)
{
    const std::pair<const char*, const char*> rows[]
        = {{":7", "m-unix-7"}, {":7.1", "m-unix-7"}, {"host:7.0", "m-host-7"}, {"7", "m-unix-7"}};
    for (const auto& [display, file] : rows)
        EXPECT_EQ(ibusAddressFile("/c", "m", display), std::filesystem::path("/c/ibus/bus") / file);
}

TEST(IBusAddress, isNoneWhenItsDaemonDoesNotRun)
{
    const TemporaryFolder folder;
    ScopedEnvironment environment;
    environment.set("IBUS_ADDRESS", std::nullopt);
    environment.set("IBUS_ADDRESS_FILE", (folder.path() / "address").string());
    EXPECT_EQ(ibusAddress(), std::nullopt);
    write(folder.path() / "address", "IBUS_ADDRESS=unix:path=/x\nIBUS_DAEMON_PID=999999999\n");
    EXPECT_EQ(ibusAddress(), std::nullopt);
    const auto own = std::to_string(::getpid());
    write(folder.path() / "address", "IBUS_ADDRESS=unix:path=/x\nIBUS_DAEMON_PID=" + own + "\n");
    EXPECT_EQ(ibusAddress(), (IBusAddress{"unix:path=/x", ::getpid()}));
    environment.set("IBUS_ADDRESS", "unix:path=/y");
    EXPECT_EQ(ibusAddress(), (IBusAddress{"unix:path=/y", 0}));
}

} // namespace
} // namespace brindlex
